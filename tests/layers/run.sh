#!/usr/bin/env bash
# run.sh REPO: the order of the source that no compiler checks. One line a rule, "[ PASS ] ..." or
# "[ FAIL ] ..." with the places. A line "RULE FILE" of exceptions.txt lets a file off.
set -u
cd "$1" || exit 1
exceptions=tests/layers/exceptions.txt
code=$(find src core include tests bench examples -name '*.cpp' -o -name '*.h' -o -name '*.c' | sort)
kernels=$(find src -name '*_kernels.h' | sort)

# report RULE TEXT: reads "FILE: what is wrong there", one line a place.
report() {
    local found
    found=$(grep -vFf <(sed -n "s/^$1 \(.*\)/\1:/p" "$exceptions"))
    if [ -z "$found" ]; then echo "[ PASS ] layers: $2"; else
        echo "[ FAIL ] layers: $2"
        sed 's/^/    /' <<<"$found"
    fi
}

# matches PATTERN FILE...: the lines with a match outside of comments.
matches() {
    pattern=$1 perl -ne 's{//.*|/\*.*?\*/}{}g; print "$ARGV:$.: $_" if /$ENV{pattern}/; close ARGV if eof' "${@:2}"
}

matches '_mm\d*_|mmintrin\.h|x86intrin\.h|__builtin_ia32' $(find src core include -name '*.cpp' -o -name '*.h' | grep -v '^src/frame/simd/') |
    report intrinsics "intrinsics are in src/frame/simd alone"
matches '\bVlqStatus\b|\bvlqSts|\bvlqs[A-Z]|\bvlqMalloc\b|\bmalloc\b|\bnew\b|\bstd::vector\b' $kernels |
    report kernels "kernels have no status, no allocation and no call of an export"
matches '##' $(find src core include -name '*.cpp' -o -name '*.h') |
    report paste "no name is pasted together"
find src -type f -printf '%f\n' | sort | uniq -d | sed 's/$/: twice below src/' |
    report names "no base name occurs twice below src"

# An include goes to the same layer or to a lower one.
includes=$(grep -rnE '^ *#include "' src --include='*.h' --include='*.cpp' | sed -E 's|^src/||; s|:[0-9]+: *#include "([^"]*)".*| \1|')
awk '
    function layer(path) {
        if (path ~ /^frame\/simd\//) return 1
        if (path ~ /^frame\/loop\//) return 2
        if (path ~ /^frame\//) return 3
        if (path ~ /\/common\//) return 4
        return 5
    }
    $2 !~ /^vlqs/ && layer($2) > layer($1) { print "src/" $1 ": includes " $2 }' <<<"$includes" |
    report upwards "includes go downwards: simd, loop, frame, common, families"

# What is after a stem and an underscore is of its family: add_constant_kernels.h may use add_kernels.h.
awk '
    function stem(path) { sub(/.*\//, "", path); sub(/_kernels\.h$/, "", path); return path }
    $1 ~ /_kernels\.h$/ && $2 ~ /_kernels\.h$/ && index(stem($1) "_", stem($2) "_") != 1 {
        print "src/" $1 ": includes " $2
    }' <<<"$includes" | report families "kernels include no other family's kernels"

# src/arith/add.cpp is tested by tests/arith/add_test.cpp; fft_fixed_test.cpp serves fft_fixed16.cpp as well.
for source in $(grep -rl '\bvlq::vlqs[A-Z]' src --include='*.cpp' | sort); do
    folder=tests/$(dirname "${source#src/}") stem=$(basename "$source" .cpp)
    for test in "$folder"/*_test.cpp; do
        case $stem in "$(basename "$test" _test.cpp)"*) continue 2 ;; esac
    done
    echo "$source: has exports, but no test of its stem in $folder"
done | report stems "every source with exports has a test of its stem"

for file in $code $(find tools tests .ci cmake -type f \( -name '*.sh' -o -name '*.txt' -o -name '*.cmake' -o -name run \)); do
    awk 'FNR == 1 && (/^#!/ || /^\/\*\*$/) { next }  # the line after it counts
         { first = $0; exit }
         END { if (first !~ /^(\/\/|\/\*| \*|#) ./) print FILENAME ": " first }' "$file"
done | report purpose "the first line of a file says what it is for"

awk 'length($0) > 100 { print FILENAME ":" FNR ": " length($0) " columns" }' $code |
    report columns "no line is longer than 100 columns"

format=$(command -v clang-format-14 || command -v clang-format)
"$format" --dry-run $code 2>&1 | sed -n "s|^\([^ ]*\):\([0-9]*\):[0-9]*: warning:.*|\1: line \2|p" |
    report format "the code is formatted by .clang-format"

grep -rniwE "asunder|told|brought|brings|stands (on|there|in|behind|by)|lies (in|behind|there|where|on)|the past of" \
    README.md docs include src core --include='*.md' --include='*.h' --include='*.cpp' --include='*.in' |
    report words "plain words in comments and documents"
