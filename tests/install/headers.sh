#!/usr/bin/env bash
# headers.sh FOLDER: the headers in FOLDER as a user's compiler and editor see them: every standard
# from C99 and C++11 on with GCC and Clang, each header on its own, and a line of documentation for
# every function.
set -u
cd "$1" || exit 1
log=$(mktemp)
trap 'rm -f "$log"' EXIT
warnings=(-Wall -Wextra -Wpedantic -Wshadow -Wcast-qual -Wundef -Werror -I. -fsyntax-only)
headers=(vlqs.h vlqs/*.h)

check() {  # check NAME COMMAND...
    local name=$1
    shift
    if "$@" >"$log" 2>&1; then echo "[ PASS ] headers: $name"; else
        echo "[ FAIL ] headers: $name"
        sed 's/^/    /' "$log" | head -n 40
    fi
}

includes() {  # includes HEADER COMPILER LANGUAGE STANDARD WARNING...: as the first line of a file
    local header=$1 compiler=$2 language=$3 standard=$4
    shift 4
    "$compiler" "-std=$standard" "${warnings[@]}" "$@" -x "$language" - <<<"#include \"$header\""
}
each_alone() {  # each_alone COMPILER LANGUAGE STANDARD WARNING...
    local header
    for header in "${headers[@]}"; do includes "$header" "$@" || return 1; done
}
for standard in c99 c11 c17; do
    for compiler in gcc clang-14; do
        check "$standard, $compiler" includes vlqs.h $compiler c $standard -Wstrict-prototypes
    done
done
for standard in c++11 c++14 c++17 c++20; do
    check "$standard, g++" includes vlqs.h g++ c++ $standard -Wold-style-cast -Wuseless-cast
    check "$standard, clang++-14" includes vlqs.h clang++-14 c++ $standard -Wold-style-cast
done
check "each alone in C" each_alone gcc c c99
check "each alone in C++" each_alone clang++-14 c++ c++11
check "the comments are well-formed" includes vlqs.h clang-14 c c99 -Wdocumentation \
    -Wdocumentation-pedantic -Wno-documentation-unknown-command

# Clang attaches a comment to the declaration that follows it. Prints every function of the headers
# that has none, or only the comment that opens its group.
undocumented() {
    clang-14 -std=c99 -I. -fsyntax-only -Xclang -ast-dump -fno-color-diagnostics -x c vlqs.h |
        awk '
            /^[|`]-/ {
                if (name != "" && !documented) print name
                name = ""
                documented = 0
                if ($1 ~ /FunctionDecl$/ && match($0, / (vlqs?[A-Z0-9][A-Za-z0-9_]*|ownGetNumThreads) /)) {
                    name = substr($0, RSTART + 1, RLENGTH - 2)
                    count++
                }
            }
            name != "" && /-FullComment / { documented = 1 }
            # @defgroup and @ingroup: the comment of a group, which the function must not share.
            name != "" && /-VerbatimLineComment / {
                print name
                name = ""
            }
            END {
                if (name != "" && !documented) print name
                print count + 0 > "/dev/stderr"
            }'
}
every_function() {
    local missing declared seen
    missing=$(undocumented 2>"$log.count")
    seen=$(cat "$log.count")
    rm -f "$log.count"
    # Counted another way, so that a dump in another format cannot pass for an empty list.
    declared=$(grep -hoE '^[A-Za-z][A-Za-z0-9_ *]*[ *](vlqs?[A-Z0-9][A-Za-z0-9_]*|ownGetNumThreads)\(' vlqs.h vlqs/*.h | wc -l)
    echo "$seen functions in the syntax tree, $declared declarations"
    if [ -n "$missing" ]; then echo "without a line: $missing"; fi
    [ "$seen" -eq "$declared" ] && [ "$seen" -gt 900 ] && [ -z "$missing" ]
}
check "every function has a line of documentation" every_function
