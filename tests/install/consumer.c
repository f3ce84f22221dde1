/* A user's first program: it sees the library only as it is installed. */
#include <stdio.h>
#include <string.h>
#include <vlqs.h>
#if defined(WITH_CORE)
#include <vlqs/core.h>
#endif

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
    return c[0] == 1 && c[1] == 2 && c[2] == 1 ? 0 : 3;
}
