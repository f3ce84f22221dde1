#!/usr/bin/env bash
# Builds the programs that measure errors, runs them on every build that this processor supports, and
# writes docs/accuracy.md and its plot docs/accuracy.svg. bench/maths/*_accuracy.cpp print rows
# "build, function, interval, largest error in ulp, limit in ulp", separated by tabs.
set -eu
cd "$(dirname "$0")/.."
mkdir -p build
{ cmake --preset bench && cmake --build --preset bench --target accuracy -j "$(nproc)"; } >build/accuracy-build.log 2>&1 ||
    { tail -n 40 build/accuracy-build.log; exit 1; }

rows=$(mktemp)
maths=$(mktemp)
trap 'rm -f "$rows" "$maths"' EXIT
for folder in build/bench/lib/s2 build/bench/lib/v3 build/bench/lib/v4; do
    tag=$(basename "$folder")
    if [ "$tag" = s2 ] || /lib64/ld-linux-x86-64.so.2 --help | grep -q "x86-64-$tag (supported"; then
        export LD_LIBRARY_PATH=$folder:build/bench/lib/core
        build/bench/bin/fourier_fft_accuracy >>"$rows"
        for program in build/bench/bin/maths_*_accuracy; do
            if [ -x "$program" ]; then "$program" >>"$maths"; fi
        done
        unset LD_LIBRARY_PATH
    fi
done

gnuplot - <<PLOT
set terminal svg size 900,600 background "white" font "sans,13"
set output "docs/accuracy.svg"
set datafile separator "\t"
set title "Error of the forward transform, units of sqrt(log2 N) u"
set xlabel "order (log2 N)"
set ylabel "relative L2 error / (sqrt(log2 N) u)"
set xrange [0.5:22.5]
set yrange [0:0.8]
set xtics 2
set key below maxrows 4
set grid
limit(x) = 0.75
plot limit(x) with lines lw 2 lc "black" title "limit", \\
    for [kind in '"complex single" "real single" "complex double" "real double"'] for [tag in "s2 v3 v4"] \\
        "$rows" using 3:((strcol(1) eq tag && strcol(2) eq kind) ? column(4) : 1/0) \\
        with points pt (tag eq "s2" ? 4 : tag eq "v3" ? 6 : 8) \\
        lc (kind eq "complex single" ? 1 : kind eq "real single" ? 2 : kind eq "complex double" ? 3 : 4) \\
        title kind." ".tag, \\
    "$rows" using 3:((strcol(1) eq "s2" && strcol(2) eq "complex single" && column(6) > 0) ? column(6) : 1/0) \\
        with points pt 2 lc "gray30" title "eight-point factor alone"
PLOT

awk -F '\t' '
    BEGIN {
        print "# Accuracy of the power-of-two transforms\n"
        print "Written by `make accuracy`; the program is `bench/fourier/fft_accuracy.cpp`.\n"
        print "The samples are uniform in (-1, 1). The error is |measured - exact| / |exact| in the L2 norm, where the"
        print "exact transform is computed in 80-bit arithmetic, and it is given in units of sqrt(log2 N) u, with"
        print "u = 2^-24 in single and 2^-53 in double precision. The limit is 0.75 forward and 1.5 for the round trip,"
        print "which is a forward and a normalized inverse transform compared with the samples. The transforms are"
        print "within the limit at every order.\n"
        print "Odd orders in single precision have one stage of eight-point transforms, whose factor 0x1.6a09e8p-1 is one"
        print "unit in the last place above 1/sqrt(2) as rounded: results are tied to that word. What it costs is in the"
        print "last column, the error of a transform that is exact but for this factor. The two add as squares, so it"
        print "costs little beside the rounding of the other stages.\n"
        print "![Error of the forward transform by order](accuracy.svg)\n"
    }
    {
        k = $2 SUBSEP $3
        forward[k, $1] = $4; back[k, $1] = $5; if ($6 > 0) share[k] = $6
        if (!($2 in seen)) { seen[$2] = 1; kinds[++count] = $2 }
        if ($3 > largest) largest = $3
        tags[$1] = 1
        if ($4 > worst) worst = $4
        if ($5 > worstBack) worstBack = $5
    }
    function cell(table, k, tag) { return ((k, tag) in table) ? table[k, tag] : "-" }
    END {
        if (worst > 0.75 || worstBack > 1.5) { print "an error is over its limit" > "/dev/stderr"; exit 1 }
        printf "Largest: %s forward, %s round trip.\n", worst, worstBack
        for (i = 1; i <= count; i++) {
            printf "\n## %s\n\n| order | s2 | v3 | v4 | round trip s2 | v3 | v4 | eight-point factor |\n", kinds[i]
            print "|---:|---:|---:|---:|---:|---:|---:|---:|"
            for (order = 1; order <= largest; order++) {
                k = kinds[i] SUBSEP order
                printf "| %d | %s | %s | %s | %s | %s | %s | %s |\n", order, cell(forward, k, "s2"), cell(forward, k, "v3"), \
                    cell(forward, k, "v4"), cell(back, k, "s2"), cell(back, k, "v3"), cell(back, k, "v4"), share[k]
            }
        }
    }' "$rows" >docs/accuracy.md

if [ -s "$maths" ]; then
    awk -F '\t' '
        BEGIN {
            print "\n# Accuracy of the mathematical functions\n"
            print "The largest error found in each interval, in units in the last place.\n"
            print "| function | interval | s2 | v3 | v4 | limit |\n|---|---|---:|---:|---:|---:|"
        }
        {
            k = $2 FS $3
            if (!(k in limit)) keys[++count] = k
            error[k, $1] = $4; limit[k] = $5
            if ($4 + 0 > $5 + 0) tooLarge = 1
        }
        function cell(k, tag) { return ((k, tag) in error) ? error[k, tag] : "-" }
        END {
            for (i = 1; i <= count; i++) {
                k = keys[i]
                split(k, name, FS)
                printf "| %s | %s | %s | %s | %s | %s |\n", name[1], name[2], cell(k, "s2"), cell(k, "v3"), cell(k, "v4"), limit[k]
            }
            if (tooLarge) { print "an error is over its limit" > "/dev/stderr"; exit 1 }
        }' "$maths" >>docs/accuracy.md
fi
echo "docs/accuracy.md"
