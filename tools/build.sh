#!/usr/bin/env bash
# Configures a build folder and builds one target in it, quietly: how far it is on a terminal, the
# compiler's messages only when something fails. All of them are in FOLDER/build.log.
#
# Usage: tools/build.sh FOLDER TARGET [CMAKE_OPTION...]
set -uo pipefail
folder=$1 target=$2
shift 2
cd "$(dirname "$0")/.." || exit 1
mkdir -p "$folder" || exit 1
log=$folder/build.log
# The build has its own number of jobs, whatever `make` was called with.
unset MAKEFLAGS MFLAGS MAKELEVEL

fail() {
    tail -n 40 "$log" >&2
    echo "Building $target failed; $log tells more." >&2
    exit 1
}

# A folder stays with the generator that it was first configured for.
generator=()
if [ ! -f "$folder/CMakeCache.txt" ]; then
    if command -v ninja >/dev/null; then generator=(-G Ninja); else generator=(-G "Unix Makefiles"); fi
fi
echo "Building $target"
cmake "${generator[@]}" -S . -B "$folder" "$@" >"$log" 2>&1 || fail

show_progress() {
    while IFS= read -r line; do
        printf '%s\n' "$line" >>"$log"
        if [ -t 1 ] && [[ $line =~ ^\[[^]]*\] ]]; then printf '\r%s\033[K' "${BASH_REMATCH[0]}"; fi
    done
    if [ -t 1 ]; then printf '\r\033[K'; fi
}
cmake --build "$folder" --target "$target" -j "$(nproc)" 2>&1 | show_progress || fail
