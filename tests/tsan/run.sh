#!/usr/bin/env bash
# The threaded paths under Clang's thread sanitizer, with LLVM's OpenMP runtime, whose Archer tool
# tells the sanitizer about regions and barriers. No suppressions.
#
# Usage: tests/tsan/run.sh REPOSITORY BUILD-FOLDER. One line a check, "[ PASS ] ..." or "[ FAIL ] ...";
# the exit code is not 0 when one failed.
set -u
repo=$(realpath "$1")
mkdir -p "$2"
build=$(realpath "$2")
llvm=/usr/lib/llvm-14
cc=clang-14
cxx=clang++-14
log=$build/tsan.log
export OMP_TOOL_LIBRARIES=$llvm/lib/libarcher.so
# Memory that the runtime itself touches is not instrumented.
export TSAN_OPTIONS="ignore_noninstrumented_modules=1 halt_on_error=1 exitcode=66"
failed=0

check() {  # check NAME COMMAND...
    local name=$1
    shift
    if "$@" >"$log" 2>&1; then
        echo "[ PASS ] tsan: $name"
    else
        echo "[ FAIL ] tsan: $name"
        head -n 60 "$log"
        failed=1
    fi
}

library() {
    CC=$cc CXX=$cxx cmake -G Ninja -S "$repo" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVLQS_SANITIZE=thread \
        -DVLQS_TESTS=OFF -DVLQS_EXAMPLES=OFF -DVLQS_BENCH=OFF && cmake --build "$build" --target vlqs vlqcore
}
compile() {  # compile OUTPUT ARGUMENT...
    local output=$1
    shift
    "$cxx" -std=c++20 -g -O1 -fopenmp -fsanitize=thread -I"$repo/include" -I"$repo/src" "$@" -o "$build/$output" \
        -Wl,-rpath,"$llvm/lib"
}
race_is_reported() {  # race_is_reported PROGRAM
    timeout 120 "$1"
    local code=$?
    grep -q "WARNING: ThreadSanitizer: data race" "$log" && [ $code != 0 ]
}

check "library builds" library
check "programs build" eval '
    compile fir_threads "$repo/tests/tsan/fir_threads.cpp" -L"$build/lib/s2" -L"$build/lib/core" -lvlqs -lvlqcore \
        -Wl,-rpath,"$build/lib/s2:$build/lib/core" &&
    compile team "$repo/tests/tsan/team.cpp" &&
    compile team_without_barrier -DVLQ_TEAM_WITHOUT_BARRIER "$repo/tests/tsan/team.cpp"'
check "fork-join frame has no race" timeout 120 "$build/team"
check "fork-join frame without its barrier is caught" race_is_reported "$build/team_without_barrier"
check "threaded FIR paths have no race" timeout 300 "$build/fir_threads"
exit $failed
