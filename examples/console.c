/* Messages and a progress bar on standard error. */
#include "console.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include "vlqs/core.h"

enum { barWidth = 50 };

static int shownPercent = -1;

bool complain(const char* format, ...) {
    endProgress();
    fflush(stdout);
    va_list arguments;
    va_start(arguments, format);
    vfprintf(stderr, format, arguments);
    va_end(arguments);
    fputc('\n', stderr);
    return false;
}

bool succeeded(VlqStatus status, const char* call) {
    if (status >= vlqStsOk) return true;
    return complain("%s failed with status %d: %s", call, (int)status, vlqGetStatusString(status));
}

void showProgress(double done, double total) {
    const int percent = (int)(100 * done / total);
    if (percent <= shownPercent) return;
    if (isatty(STDOUT_FILENO)) {
        char bar[barWidth + 1] = "";
        memset(bar, '#', (size_t)(percent * barWidth / 100));
        printf("\r[%-*s] %3d %%", barWidth, bar, percent);
        if (percent == 100) putchar('\n');
    } else if (percent / 25 > shownPercent / 25) {
        printf("%3d %% filtered\n", percent);
    }
    fflush(stdout);
    shownPercent = percent;
}

void endProgress(void) {
    if (shownPercent >= 0 && shownPercent < 100 && isatty(STDOUT_FILENO)) putchar('\n');
    shownPercent = -1;
}
