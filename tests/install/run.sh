#!/usr/bin/env bash
# run.sh REPO BUILD: installs a build into a folder of its own and uses it as a stranger would:
# through CMake, through pkg-config, and with plain cc -lvlqs.
set -u
repo=$1 build=$2
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
prefix=$stage/usr
log=$stage/log

check() {  # check NAME COMMAND...
    local name=$1
    shift
    if "$@" >"$log" 2>&1; then echo "[ PASS ] install: $name"; else
        echo "[ FAIL ] install: $name"
        sed 's/^/    /' "$log"
    fi
}

check "cmake --install" cmake --install "$build" --prefix "$prefix"
lib=$(dirname "$(find "$prefix" -name 'libvlqs.so.7' -not -path '*hwcaps*')")
header_c11() { cc -std=c11 -Wall -Wextra -Wpedantic -Werror -I"$prefix/include" -fsyntax-only -x c "$prefix/include/vlqs.h"; }
header_cxx() { c++ -std=c++11 -Wall -Wextra -Wpedantic -Werror -I"$prefix/include" -fsyntax-only -x c++ "$prefix/include/vlqs.h"; }
check "headers are C11" header_c11
check "headers are C++" header_cxx

cmake_consumer() {
    cmake -S "$repo/tests/install/cmake_consumer" -B "$stage/cmake" -DCMAKE_PREFIX_PATH="$prefix" &&
        cmake --build "$stage/cmake" && LD_LIBRARY_PATH=$lib "$stage/cmake/consumer"
}
check "find_package(vlqs)" cmake_consumer

pkgconfig_consumer() {
    local flags
    flags=$(PKG_CONFIG_PATH=$lib/pkgconfig pkg-config --define-variable=prefix="$prefix" --cflags --libs vlqs) &&
        cc -std=c11 -DWITH_CORE "$repo/tests/install/consumer.c" -o "$stage/pc" $flags && LD_LIBRARY_PATH=$lib "$stage/pc"
}
check "pkg-config" pkgconfig_consumer

plain_consumer() {
    cc -std=c11 -I"$prefix/include" "$repo/tests/install/consumer.c" -o "$stage/plain" -L"$lib" -lvlqs &&
        LD_LIBRARY_PATH=$lib "$stage/plain"
}
check "cc -lvlqs" plain_consumer

# The loader picks the build that suits the processor; a mask makes it pick another.
loader=/lib64/ld-linux-x86-64.so.2
best=s2
for level in v3 v4; do
    if "$loader" --help | grep -q "x86-64-$level (supported"; then best=$level; fi
done
check "the loader picks $best" env LD_LIBRARY_PATH="$lib" "$stage/plain" "$best"
check "the loader falls back to s2" env LD_LIBRARY_PATH="$lib" "$loader" --glibc-hwcaps-mask none "$stage/plain" s2
