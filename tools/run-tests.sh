#!/usr/bin/env bash
# Builds and runs the tests, and ends with the line "N passed, N failed".
#
#   layers        rules of the source that no compiler checks
#   release       every test program on every build that this processor supports, GCC
#   install       the installed package as its users see it
#   names         every exported name is called by a test
# and those that take longer, in `all` alone:
#   clang         the same test programs on the baseline build as Clang compiles it
#   sanitize      the same programs with the address and undefined-behaviour sanitizers of GCC, the smallest sweeps
#   clang-all     the test programs on the other two builds as Clang compiles them
#   sanitize-all  the sanitize stage with the usual sweeps
#   tsan          the threaded paths under the thread sanitizer, with a negative control
#   full          the release stage with the complete random sets
# and for a developer's loop:
#   quick         the baseline build alone, every test in its smallest sweep
#
# Usage: tools/run-tests.sh [all | stage...]; the first group without arguments.
set -u
cd "$(dirname "$0")/.." || exit 1
repo=$PWD
usual="layers release install names"
stages=${*:-$usual}
[ "$stages" != all ] || stages="$usual clang sanitize tsan full clang-all sanitize-all"
jobs=$(nproc)
# The builds have their own number of jobs, whatever `make` was called with.
unset MAKEFLAGS MFLAGS MAKELEVEL
export logs=build/test-logs
rm -rf "$logs"
mkdir -p "$logs"
passed=0 failed=0

supported=s2
for level in v3 v4; do
    if /lib64/ld-linux-x86-64.so.2 --help | grep -q "x86-64-$level (supported"; then supported="$supported $level"; fi
done

record() {  # record PASSED FAILED
    passed=$((passed + $1))
    failed=$((failed + $2))
}

TIMEFORMAT='%0R s, CPU %0U s and %0S s in the kernel'
timed() {  # timed LABEL COMMAND...: prints how long the command took
    local label=$1 status
    shift
    { time "$@" 2>&3; } 3>&2 2>"$logs/time"
    status=$?
    echo "$label: $(cat "$logs/time")"
    return $status
}

build() {  # build PRESET [TARGET...]: configures and builds; a failure counts as one failed test
    local log=$logs/build-$1.log
    timed "build of $1" build_quietly "$@" && return 0
    echo "[ FAIL ] build of preset $1:"
    grep -E -A 15 'FAILED:|error:|Error' "$log" | head -n 60
    record 0 1
    return 1
}
build_quietly() {
    { cmake --preset "$1" && cmake --build --preset "$1" -j "$jobs" --target "${@:2}"; } >"$logs/build-$1.log" 2>&1
}

# One GoogleTest program on one build of the library; its counts go to NAME.counts.
run_program() {  # run_program PROGRAM LIBRARIES LABEL
    local name log
    name=$3-$(basename "$1")
    log=$logs/$name.log
    timeout 900 env LD_LIBRARY_PATH="$2" ${preload:+LD_PRELOAD="$preload"} "$1" >"$log" 2>&1
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

run_programs() {  # run_programs LABEL LIBRARY-FOLDER TAG...
    local label=$1 libraries=$2 tag program good bad count=0
    shift 2
    for tag; do
        for program in build/release/bin/*_test; do
            case $program in  # code of one instruction set runs with that build alone
                *_simd_"$tag"_test) ;;
                *_simd_*_test) continue ;;
            esac
            printf '%s\0%s\0%s\0' "$program" "$repo/$libraries/$tag:$repo/$libraries/core" "$label-$tag"
        done
    done | timed "run of $label" xargs -0 -n 3 -P "$jobs" bash -c 'run_program "$@"' _
    while read -r good bad; do
        record "$good" "$bad"
        count=$((count + good + bad))
    done < <(for tag; do cat "$logs/$label-$tag"-*.counts; done)
    echo "$count tests"
}

run_script() {  # run_script COMMAND...: counts its lines "[ PASS ] ..." and "[ FAIL ] ..."
    local log=$logs/script.log
    timed "$(basename "$(dirname "$1")")" "$@" >"$log" 2>&1
    local code=$? good bad
    cat "$log"
    good=$(grep -c '^\[ PASS \]' "$log")
    bad=$(grep -c '^\[ FAIL \]' "$log")
    if [ $code != 0 ] && [ "$bad" = 0 ]; then bad=1; fi
    record "$good" "$bad"
}

run_sanitized() {  # run_sanitized LABEL
    local preload
    export ASAN_OPTIONS=allocator_may_return_null=1 UBSAN_OPTIONS=print_stacktrace=1
    # The programs are not instrumented: the sanitizer's runtime comes first all the same.
    preload=$(gcc -print-file-name=libasan.so)
    export preload
    run_programs "$1" build/sanitize/lib s2
}

run_stage() {
    case $1 in
        layers) run_script tests/layers/run.sh "$repo" ;;
        release) build release all && run_programs release build/release/lib $supported ;;
        clang) build release all && build clang vlqs vlqcore && run_programs clang build/clang/lib s2 ;;
        sanitize) build release all && build sanitize vlqs vlqcore && VLQS_QUICK=1 run_sanitized sanitize ;;
        install) build release all && run_script tests/install/run.sh "$repo" "$repo/build/release" ;;
        names) build release all && run_script tests/names/run.sh "$repo" "$repo/build/release" ;;
        clang-all) build release all && build clang all && run_programs clang-all build/clang/lib ${supported#s2} ;;
        sanitize-all) build release all && build sanitize vlqs vlqcore && run_sanitized sanitize-all ;;
        tsan) run_script tests/tsan/run.sh "$repo" "$repo/build/tsan" ;;
        full) build release all && VLQS_FULL=1 run_programs full build/release/lib $supported ;;
        quick) build release quick && VLQS_QUICK=1 run_programs quick build/release/lib s2 ;;
        *) echo "no stage $1" && exit 1 ;;
    esac
}

for stage in $stages; do
    echo "== $stage"
    run_stage "$stage"
done

echo "$passed passed, $failed failed"
[ "$failed" = 0 ] && [ "$passed" != 0 ]
