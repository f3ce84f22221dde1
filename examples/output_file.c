/* Output under a temporary name that becomes the final one on success. */
#include "output_file.h"

#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include "console.h"

enum { maxFiles = 2 };

/* What the signal handler removes. */
static char* volatile underWay[maxFiles];

static void removeAndDie(int signalNumber) {
    for (int i = 0; i < maxFiles; ++i) {
        if (underWay[i]) unlink(underWay[i]);
    }
    raise(signalNumber); /* again, now with the default action: the handler was for one time */
}

static bool remember(char* temporary) {
    static const int deadly[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};
    for (size_t i = 0; i < sizeof deadly / sizeof deadly[0]; ++i) {
        struct sigaction action = {.sa_handler = removeAndDie, .sa_flags = (int)SA_RESETHAND};
        sigaction(deadly[i], &action, NULL);
    }
    for (int i = 0; i < maxFiles; ++i) {
        if (underWay[i]) continue;
        underWay[i] = temporary;
        return true;
    }
    return false;
}

static void forget(OutputFile* output) {
    for (int i = 0; i < maxFiles; ++i) {
        if (underWay[i] == output->temporary) underWay[i] = NULL;
    }
    free(output->temporary);
    output->temporary = NULL;
}

bool cannotWrite(const char* path) {
    return complain("%s cannot be written: %s.", path,
                    errno ? strerror(errno) : "the reason is unknown");
}

bool createOutput(OutputFile* output, const char* path) {
    static const char suffix[] = ".XXXXXX";
    struct stat about;
    if (stat(path, &about) == 0 && !S_ISREG(about.st_mode))
        return complain("%s exists and is not a file.", path);

    output->path = path;
    output->temporary = malloc(strlen(path) + sizeof suffix);
    if (!output->temporary) return complain("There is not enough memory.");
    strcpy(output->temporary, path);
    strcat(output->temporary, suffix);
    output->descriptor = remember(output->temporary) ? mkstemp(output->temporary) : -1;
    if (output->descriptor < 0) {
        cannotWrite(path);
        forget(output);
        return false;
    }
    /* mkstemp() makes files private; these get the permissions of any other new file. */
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(output->descriptor, 0666 & ~mask);
    return true;
}

bool keepOutputs(OutputFile* outputs, int count) {
    for (int i = 0; i < count; ++i) {
        if (rename(outputs[i].temporary, outputs[i].path) == 0) {
            forget(&outputs[i]);
            continue;
        }
        cannotWrite(outputs[i].path);
        for (int kept = 0; kept < i; ++kept) unlink(outputs[kept].path);
        removeOutputs(outputs, count);
        return false;
    }
    return true;
}

void removeOutputs(OutputFile* outputs, int count) {
    for (int i = 0; i < count; ++i) {
        if (!outputs[i].temporary) continue;
        unlink(outputs[i].temporary);
        forget(&outputs[i]);
    }
}
