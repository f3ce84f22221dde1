#!/usr/bin/env bash
# Builds and runs every test, and ends with the line "N passed, N failed".
#
#   release   every test program on every build that this processor supports, GCC
#   clang     the same test programs on the libraries as Clang builds them
#   sanitize  address and undefined-behaviour sanitizers, the baseline build
#   tsan      the threaded paths under the thread sanitizer, with a negative control
#   install   the installed package as its users see it
#   names     every exported name is called by a test
#
# Usage: tools/run-tests.sh [stage...]; all stages without arguments.
set -u
cd "$(dirname "$0")/.." || exit 1
repo=$PWD
stages=${*:-release clang sanitize tsan install names}
jobs=$(nproc)
logs=build/test-logs
rm -rf "$logs"
mkdir -p "$logs"
passed=0 failed=0

tags=s2
for level in v3 v4; do
    if /lib64/ld-linux-x86-64.so.2 --help | grep -q "x86-64-$level (supported"; then tags="$tags $level"; fi
done

record() {  # record PASSED FAILED
    passed=$((passed + $1))
    failed=$((failed + $2))
}

build() {  # build PRESET: configures and builds; a failure counts as one failed test
    if { cmake --preset "$1" && cmake --build --preset "$1" -j "$jobs"; } >"$logs/build-$1.log" 2>&1; then return 0; fi
    echo "[ FAIL ] build of preset $1:"
    tail -n 40 "$logs/build-$1.log"
    record 0 1
    return 1
}

# One GoogleTest program on one build of the library; its counts go to NAME.counts.
run_program() {  # run_program PROGRAM LIBRARIES LABEL
    local name log
    name=$3-$(basename "$1")
    log=$logs/$name.log
    ASAN_OPTIONS=allocator_may_return_null=1 LSAN_OPTIONS=suppressions=tests/harness/lsan.supp LD_LIBRARY_PATH=$2 timeout 900 "$1" >"$log" 2>&1
    local code=$? good bad
    good=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) test.*/\1/p' "$log" | tail -n 1)
    bad=$(sed -n 's/^\[  FAILED  \] \([0-9]*\) test.*/\1/p' "$log" | tail -n 1)
    good=${good:-0} bad=${bad:-0}
    # A program that dies, or that runs no test, has failed whatever it counted.
    if [ "$bad" = 0 ] && { [ $code != 0 ] || [ "$good" = 0 ]; }; then bad=1; fi
    echo "$good $bad" >"$logs/$name.counts"
    if [ "$bad" != 0 ]; then
        echo "[ FAIL ] $name"
        grep -E 'Failure|FAILED|ERROR|runtime error|SUMMARY|in the case' -A 6 "$log" | head -n 60
    fi
}
export -f run_program
export logs

run_programs() {  # run_programs LABEL PROGRAM-FOLDER LIBRARY-FOLDER
    local tag
    for tag in $tags; do
        for program in "$2"/*_test; do
            case $program in  # code of one instruction set runs with that build alone
                *_simd_"$tag"_test) ;;
                *_simd_*_test) continue ;;
            esac
            printf '%s\0%s\0%s\0' "$program" "$3/$tag:$3/core" "$1-$tag"
        done
    done | xargs -0 -n 3 -P "$jobs" bash -c 'run_program "$@"' _
    local good bad count=0
    while read -r good bad; do
        record "$good" "$bad"
        count=$((count + good + bad))
    done < <(cat "$logs/$1"-*.counts)
    echo "$1: $count tests"
}

run_script() {  # run_script COMMAND...: counts its lines "[ PASS ] ..." and "[ FAIL ] ..."
    local log=$logs/script.log
    "$@" >"$log" 2>&1
    local code=$? good bad
    cat "$log"
    good=$(grep -c '^\[ PASS \]' "$log")
    bad=$(grep -c '^\[ FAIL \]' "$log")
    if [ $code != 0 ] && [ "$bad" = 0 ]; then bad=1; fi
    record "$good" "$bad"
}

for stage in $stages; do
    echo "== $stage"
    case $stage in
        release) build release && run_programs release "$repo/build/release/bin" "$repo/build/release/lib" ;;
        clang) build release && build clang && run_programs clang "$repo/build/release/bin" "$repo/build/clang/lib" ;;
        # The baseline build alone: all three would take longer than everything else together.
        sanitize) build sanitize && tags=s2 run_programs sanitize "$repo/build/sanitize/bin" "$repo/build/sanitize/lib" ;;
        tsan) run_script tests/tsan/run.sh "$repo" "$repo/build/tsan" ;;
        install) build release && run_script tests/install/run.sh "$repo" "$repo/build/release" ;;
        names) build release && run_script tests/names/run.sh "$repo" "$repo/build/release" ;;
        *) echo "no stage $stage" && exit 1 ;;
    esac
done

echo "$passed passed, $failed failed"
[ "$failed" = 0 ] && [ "$passed" != 0 ]
