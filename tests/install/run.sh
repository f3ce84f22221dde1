#!/usr/bin/env bash
# run.sh REPO BUILD: installs a build into a folder of its own and uses it as a stranger would:
# through CMake, through pkg-config, and with plain cc -lvlqs; shared, static, and moved elsewhere.
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

"$repo/tests/install/headers.sh" "$prefix/include"

# In a project without C++.
cmake_consumer() {  # cmake_consumer PREFIX NAME LIBRARIES
    cmake -S "$repo/tests/install/cmake_consumer" -B "$stage/$2" -DCMAKE_PREFIX_PATH="$1" &&
        cmake --build "$stage/$2" && LD_LIBRARY_PATH=$3 "$stage/$2/consumer"
}
check "find_package(vlqs)" cmake_consumer "$prefix" shared "$lib"

baseline_targets() {  # programs link with the baseline; the tuned builds are for the loader alone
    ! grep -rE 'vlqs_v[34]|hwcaps' "$lib/cmake/vlqs"
}
check "the package has no tuned targets" baseline_targets

pkgconfig_consumer() {  # pkgconfig_consumer PROGRAM LIBRARIES
    local flags
    flags=$(PKG_CONFIG_PATH=$2/pkgconfig pkg-config --cflags --libs vlqs) &&
        cc -std=c99 -DWITH_CORE "$repo/tests/install/consumer.c" -o "$stage/$1" $flags &&
        LD_LIBRARY_PATH=$2 "$stage/$1"
}
check "pkg-config" pkgconfig_consumer pc "$lib"

plain_consumer() {
    cc -std=c99 -I"$prefix/include" "$repo/tests/install/consumer.c" -o "$stage/plain" -L"$lib" -lvlqs &&
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

# The installed tree works wherever it is moved to.
mv "$prefix" "$stage/moved"
moved=$stage/moved${lib#"$prefix"}
check "find_package(vlqs) in a moved tree" cmake_consumer "$stage/moved" moved_cmake "$moved"
check "pkg-config in a moved tree" pkgconfig_consumer moved_pc "$moved"

# One static library, which needs nothing but the C library.
static_build() {
    cmake -S "$repo" -B "$build-static" -DBUILD_SHARED_LIBS=OFF -DVLQS_LEVEL=s2 -DVLQS_WERROR=ON &&
        cmake --build "$build-static" -j "$(nproc)" && cmake --install "$build-static" --prefix "$stage/static"
}
needs_libc_alone() {  # needs_libc_alone PROGRAM
    ! readelf -d "$1" | grep NEEDED | grep -vE '\[(libc|libm)\.so\.6\]'
}
check "static library" static_build
static_lib=$(dirname "$(find "$stage/static" -name libvlqs.a)")
check "find_package(vlqs), static" cmake_consumer "$stage/static" static_cmake ""
check "pkg-config, static" pkgconfig_consumer static_pc "$static_lib"
check "the program needs libc alone" needs_libc_alone "$stage/static_pc"

# The build line of a machine that has a compiler and CMake alone.
bare_configuration() {
    cmake -S "$repo" -B "$stage/bare" -G "Unix Makefiles" -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON \
        -DCMAKE_DISABLE_FIND_PACKAGE_PkgConfig=ON -DCMAKE_DISABLE_FIND_PACKAGE_PNG=ON \
        -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON &&
        grep -qE 'VLQS_TESTS:BOOL=OFF' "$stage/bare/CMakeCache.txt"
}
check "configures without further packages" bare_configuration
