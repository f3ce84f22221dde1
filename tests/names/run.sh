#!/usr/bin/env bash
# run.sh REPO BUILD: every exported name is called by a test of its family, and stands in the manual.
# The program of the generic checks calls every name, so it does not count.
set -u
cd "$1" || exit 1
programs=$(ls "$2"/bin/*_test | grep -v frame_signature_test)
exported=$(sed 's/ = .*//' src/frame/names.txt)

report() {  # report PASS-TEXT FAIL-TEXT: reads the names that something has; no export may miss there
    local missing
    missing=$(grep -vxFf <(sort -u) <<<"$exported")
    if [ -z "$missing" ]; then echo "[ PASS ] $1"; else echo "[ FAIL ] $2:" $missing; fi
}

nm -u $programs | sed -n 's/^ *U \(vlqs[A-Za-z0-9_]*\).*/\1/p' |
    report "every exported name is called by a test" "exported names without a test"
grep -rhow 'vlqs[A-Za-z0-9_]*' include | report "every exported name is declared" "exported names without a declaration"
