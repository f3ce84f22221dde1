# Turns the rows of the benchmark programs into docs/benchmarks.md: first how many rows are at or
# below their bar and the list of the others, then all rows, a table for each program.
#
# A line "@family" starts a program's rows. A row: build, work, size, ns of ours, peer, ns of the
# peer, ours over the peer, bar; separated by tabs.
BEGIN { FS = "\t"; split("s2 v3 v4", tags, " ") }

/^@/ {
    family = substr($0, 2)
    gsub("_", " ", family)
    if (!(family in rowsOf)) families[++familyCount] = family
    next
}
{
    row = family FS $2 FS $3 FS $5
    if (!(row in work)) {
        rows[family, ++rowsOf[family]] = row
        work[row] = $2; size[row] = $3; peer[row] = $5; bars[row] = ""
    }
    cell[row, $1] = sprintf("%.4g", $4) ($6 > 0 ? sprintf(" (%.2f)", $7) : "")
    if ($8 > 0 && index(" / " bars[row] " / ", " / " $8 " / ") == 0)
        bars[row] = bars[row] (bars[row] == "" ? "" : " / ") $8
    if ($8 > 0 && $6 > 0) {
        seen[$1] = 1
        of[family, $1]++; of["all", $1]++
        # As printed: what two decimals do not show is noise.
        if (sprintf("%.2f", $7) + 0 <= $8 + 0) { good[family, $1]++; good["all", $1]++ }
        else {
            excess[++aboveCount] = $7 / $8
            above[aboveCount] = sprintf("| %.2f | %s | %s | %s | %s | %.2f | %s | %s |", $7 / $8, family, $2, $3, $1, $7, $8, $5)
        }
    }
}

function counts(name,   t, text) {
    text = "| " name " |"
    for (t = 1; t <= 3; t++)
        text = text (((name, tags[t]) in of) ? sprintf(" %d of %d |", good[name, tags[t]], of[name, tags[t]]) : " - |")
    return text
}

END {
    print "\n## Rows at or below their bar\n\n| family | s2 | v3 | v4 |\n|---|---:|---:|---:|"
    for (f = 1; f <= familyCount; f++) print counts(families[f])
    print counts("all")

    print "\n## Rows above their bar, worst first\n"
    if (!aboveCount) print "None."
    else print "| over the bar | family | work | size | build | ratio | bar | peer |\n|---:|---|---|---:|---|---:|---:|---|"
    for (i = 2; i <= aboveCount; i++) {
        for (k = i; k > 1 && excess[k] > excess[k - 1]; k--) {
            swap = excess[k]; excess[k] = excess[k - 1]; excess[k - 1] = swap
            swap = above[k]; above[k] = above[k - 1]; above[k - 1] = swap
        }
    }
    for (i = 1; i <= aboveCount; i++) print above[i]

    for (f = 1; f <= familyCount; f++) {
        family = families[f]
        print "\n## " family "\n\n| work | size | s2 | v3 | v4 | peer | bar |\n|---|---:|---:|---:|---:|---|---:|"
        for (i = 1; i <= rowsOf[family]; i++) {
            row = rows[family, i]
            printf "| %s | %s |", work[row], size[row]
            for (t = 1; t <= 3; t++) printf " %s |", ((row, tags[t]) in cell) ? cell[row, tags[t]] : "-"
            printf " %s | %s |\n", peer[row], bars[row]
        }
    }
}
