/* A user's first program: it sees the library only as it is installed. */
#include <stdio.h>
#include <string.h>
#include <vlqs.h>
#if defined(WITH_CORE)
#include <vlqs/core.h>
#endif

/* Functions that only the header has. */
static int forwardsWork(void) {
    const Vlq32s taps[2] = {1, 2}, history[2] = {3, 4}, other[2] = {5, 6};
    Vlq32s line[2] = {0, 0};
    VlqsFIRState_32s* filter = NULL;
    int ok = vlqsFIRInitAlloc_32s(&filter, taps, 2, history) == vlqStsOk &&
             vlqsFIRGetDlyLine_32s(filter, line) == vlqStsOk;
    ok = ok && line[0] == 3 && line[1] == 4;
    ok = ok && vlqsFIRSetDlyLine_32s(filter, other) == vlqStsOk &&
         vlqsFIRGetDlyLine_32s(filter, line) == vlqStsOk;
    ok = ok && line[0] == 5 && line[1] == 6;
    return vlqsFIRFree_32s(filter) == vlqStsOk && ok;
}

int main(int argc, char** argv) {
    const Vlq8u a[3] = {1, 2, 3}, b[3] = {3, 3, 1};
    Vlq8u c[3];
    const VlqStatus status = vlqsAnd_8u(a, b, c, 3);
    if (status != vlqStsOk) {
#if defined(WITH_CORE)
        fprintf(stderr, "%s\n", vlqGetStatusString(status));
#endif
        return 1;
    }
    printf("%s\n", vlqsGetLibVersion()->libraryName);
    /* With an argument: the tag of the build that the loader should have picked. */
    if (argc > 1 && strcmp(argv[1], vlqsGetLibVersion()->targetTag) != 0) return 2;
    if (!forwardsWork()) return 4;
    return c[0] == 1 && c[1] == 2 && c[2] == 1 ? 0 : 3;
}
