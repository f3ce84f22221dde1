#!/usr/bin/env bash
# Builds and runs every benchmark on every build that this processor supports, and writes the
# results to docs/benchmarks.md, and the error of the transforms to docs/accuracy.md.
# Usage: tools/run-bench.sh [program-name-pattern]
# With a pattern only the matching programs run, and the document stays as it is.
set -eu
cd "$(dirname "$0")/.."
pattern=${1:-}
mkdir -p build
cmake --preset bench >build/bench-build.log
cmake --build --preset bench -j "$(nproc)" >>build/bench-build.log || { tail -n 40 build/bench-build.log; exit 1; }

tags=s2
for level in v3 v4; do
    if /lib64/ld-linux-x86-64.so.2 --help | grep -q "x86-64-$level (supported"; then tags="$tags $level"; fi
done

results=$(mktemp)
trap 'rm -f "$results"' EXIT
for program in build/bench/bin/*"$pattern"*_bench; do
    echo "@$(basename "$program" _bench)" >>"$results"
    for tag in $tags; do
        echo "== $(basename "$program") $tag"
        VLQS_BENCH_OUT=$results LD_LIBRARY_PATH=build/bench/lib/$tag:build/bench/lib/core "$program"
    done
done
if [ -n "$pattern" ]; then exit 0; fi

processor=$(sed -n 's/^model name.*: //p' /proc/cpuinfo | head -n 1)
{
    echo "# Benchmarks"
    echo
    # FFT_ORDERS=from-to limits the FFT rows: FFTW takes minutes to measure its plans of long transforms.
    echo "Written by \`${FFT_ORDERS:+FFT_ORDERS=$FFT_ORDERS }make bench\` on $(date -u +%Y-%m-%d)."
    echo
    echo "- Processor: $processor, $(nproc) cores; L1d $(getconf LEVEL1_DCACHE_SIZE), L2 $(getconf LEVEL2_CACHE_SIZE), L3 $(getconf LEVEL3_CACHE_SIZE) bytes"
    echo "- Compiler: $(g++ --version | head -n 1), -O3; $(. /etc/os-release && echo "$PRETTY_NAME"), Linux $(uname -r)"
    echo "- Peers: the C library $(ldd --version | sed -n '1s/.* //p'), FFTW $(pkg-config --modversion fftw3f), VOLK $(pkg-config --modversion volk), liquid-dsp $(dpkg-query -W -f='${Version}' libliquid-dev 2>/dev/null)"
    echo
    echo "Times are the fastest of 25 repetitions, in ns for one element of the given size; rows marked"
    echo "\`call\` give ns for one call. Ours and the peer run in one process, interleaved, on the same data,"
    echo "one thread unless the row says otherwise. The number in brackets is ours over the peer: below 1 we are"
    echo "faster. s2, v3 and v4 are the SSE2, AVX2 and AVX-512 builds; the bar is the ratio aimed at. VOLK runs"
    echo "its best kernels with the instructions of the build beside it, FFTW all that it has: the bars of the"
    echo "transforms are what the best library reaches with the build's instructions over FFTW as it is."
    awk -f tools/bench-report.awk "$results"
} >docs/benchmarks.md
echo "docs/benchmarks.md"
tools/run-accuracy.sh
