#!/usr/bin/env bash
# The threaded paths under Clang's thread sanitizer. No suppressions.
#
# Usage: tests/tsan/run.sh REPOSITORY BUILD-FOLDER. One line a check, "[ PASS ] ..." or "[ FAIL ] ...";
# the exit code is not 0 when one failed.
set -u
repo=$(realpath "$1")
mkdir -p "$2"
build=$(realpath "$2")
cc=clang-14
cxx=clang++-14
log=$build/tsan.log
export TSAN_OPTIONS="halt_on_error=1 exitcode=66"
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
    "$cxx" -std=c++20 -g -O1 -fsanitize=thread -I"$repo/include" -I"$repo/src" "$@" -o "$build/$output"
}
race_is_reported() {  # race_is_reported PROGRAM
    timeout 120 "$1"
    local code=$?
    grep -q "WARNING: ThreadSanitizer: data race" "$log" && [ $code != 0 ]
}

check "library builds" library
check "programs build" eval '
    compile fir_threads "$repo/tests/tsan/fir_threads.cpp" -rdynamic -L"$build/lib/s2" -L"$build/lib/core" -lvlqs -lvlqcore \
        -Wl,-rpath,"$build/lib/s2:$build/lib/core" &&
    compile team "$repo/tests/tsan/team.cpp" "$repo/src/frame/team.cpp" &&
    compile overlapping -DOVERLAPPING_SHARES "$repo/tests/tsan/team.cpp" "$repo/src/frame/team.cpp"'
check "fork-join frame has no race" timeout 120 "$build/team"
check "shares that overlap are caught" race_is_reported "$build/overlapping"
check "threaded FIR paths have no race" timeout 300 "$build/fir_threads"
exit $failed
