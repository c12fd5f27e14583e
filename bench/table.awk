# Prints the table of the figures: awk -f table.awk FIGURES TARGETS, with LC_ALL=C. Ends with status 1 when a target is
# missed.

function width(text) {
    gsub(/[\200-\277]/, "", text) # a character of several bytes counts once
    return length(text)
}

function pad(text, columns) {
    while (width(text) < columns)
        text = text " "
    return text
}

function row(figure, target, reach, measured, verdict) {
    print "| " pad(figure, 60) " | " pad(target, 9) " | " pad(reach, 9) " | " pad(measured, 9) " | " pad(verdict, 7) " |"
}

function dashes(count,    text) {
    while (length(text) < count)
        text = text "-"
    return text
}

function shown(number, unit) {
    if (unit == "bytes")
        return number < 1024 ? number " B" : sprintf("%.1f KiB", number / 1024)
    if (unit == "ratio")
        return sprintf("%.2f", number)
    return unit == "count" ? number : sprintf("%.0f %s", number, unit)
}

FILENAME == ARGV[1] {
    split($0, part, " ")
    value[part[1]] = part[2]
    ns[part[1]] = part[3]
    unit_ns[part[1]] = part[4]
    next
}

/^#/ { next }

!begun++ {
    row("figure", "target", "reach for", "measured", "")
    row(dashes(60), dashes(9), dashes(9), dashes(9), dashes(7))
}

{
    split($0, part, / *[|] */)
    key = part[1]; target = part[3] + 0; reach = part[4] + 0; unit = part[5]
    if (key in value) {
        measured = shown(value[key] + 0, unit)
        verdict = value[key] + 0 <= reach ? "reached" : value[key] + 0 <= target ? "ok" : "missed"
    } else {
        measured = "none"
        verdict = "missed"
    }
    if (verdict == "missed")
        missed = 1
    row(part[2], shown(target, unit), shown(reach, unit), measured, verdict)
}

END {
    printf "\nThe full script has %d lines and %.1f MB. A line takes %.1f ns and %d instructions, one snprintf and append of\n",
        value["lines"], value["text_bytes"] / 1e6, ns["full_script"], value["instructions"]
    printf "it %.1f ns; with everything forced, a line takes %.2f of an snprintf and append. A line of 200,000 takes %.2f of a\n",
        unit_ns["full_script"], value["full_dump"], value["without_comparing"]
    printf "line of 3,000 when what the comparing of equal records takes is left out. memcmp of two records: %.1f µs. The\n",
        unit_ns["equal_records"] / 1000
    printf "process with the library starts in %d µs of processor time, the empty one in %d µs, the least of 1,000 times; in\n",
        ns["start"], unit_ns["start"]
    printf "elapsed time the difference is %d µs.\n", value["start_elapsed"]
    exit missed
}
