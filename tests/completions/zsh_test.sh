#!/usr/bin/env bash
# That what zsh completes agrees with the program; where zsh is installed, that it reads the file.
#   zsh_test.sh PROGRAM
set -euo pipefail
program=$1
file=$(dirname "$0")/../../completions/_pondiff
failures=0

sorted() { tr ' ' '\n' | sed '/^$/d' | LC_ALL=C sort -u | paste -sd' '; }

# same WHAT OF_ZSH OF_PROGRAM
same() {
    [[ -n $3 && $2 == "$3" ]] && return
    printf '%s\nzsh:     %s\nprogram: %s\n' "$1" "$2" "$3" >&2
    failures=$((failures + 1))
}

# The text of an array's parentheses.
array() {
    awk -v start=" $1=(" 'at = index($0, start) { $0 = substr($0, at + length(start)); inside = 1 }
        inside { ended = sub(/\)$/, ""); print; if (ended) exit }' "$file"
}
# The words in an array of descriptions.
described() { array "$1" | sed -n "s/^ *'\([^:]*\):.*/\1/p" | sorted; }
# The list in the program's message about an unknown area.
listed() {
    { "$program" diff --only "$1" a b 2>&1 || true; } | sed -n 's/.*there are \(.*\)/\1/p' | sed 's/,//g; s/ and / /' | sorted
}

same kinds "$(array kinds | sorted)" "$(listed profile:)"
same blocks "$(array blocks | sorted)" "$(listed block:)"
same areas "$(echo "$(described areas) $(described families)" | sorted)" "$(listed '?' | sed 's/:[^ ]*//g' | sorted)"
same commands "$(described commands)" "$("$program" --help | sed -n '/^Commands:$/,/^$/ s/^  \([a-z]*\) .*/\1/p' | sorted)"

for command in diff check pack show; do
    section=$(sed -n "/^        $command)\$/,/;;/p" "$file")
    options=$(grep -oE -e "'--[a-z]+" -e "\{-o\+,--output=\}|\\\$help" <<<"$section" |
        sed "s/'//; s/{-o+,--output=}/-o --output/; s/\$help/-h --help/" | sorted)
    same "options of $command" "$options" "$("$program" "$command" --help | sed -n 's/^  \(-[^ ]*\) .*/\1/p' | tr ',' ' ' | sorted)"
done

if command -v zsh >/dev/null; then
    zsh -n "$file" || failures=$((failures + 1))
fi
[[ $failures -eq 0 ]]
