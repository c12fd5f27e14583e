#!/usr/bin/env bash
# What bash completes, and that it agrees with the program.
#   bash_test.sh PROGRAM
# shellcheck disable=SC2034 # bash sets the COMP_ variables where it completes
set -euo pipefail
program=$1
# shellcheck source=completions/pondiff.bash
source "$(dirname "$0")/../../completions/pondiff.bash"
# Outside of a completion there are no options to set.
compopt() { options+=" $*"; }

failures=0

# The words that complete the line, sorted.
completed() {
    COMP_LINE=$1 COMP_POINT=${2:-${#1}} options='' COMPREPLY=()
    _pondiff
    printf '%s\n' ${COMPREPLY[@]+"${COMPREPLY[@]}"} | LC_ALL=C sort | paste -sd' '
}

# expect LINE WORDS
expect() {
    local found
    found=$(completed "$1")
    if [[ $found != "$2" ]]; then
        printf 'of "%s"\nexpected: %s\nfound:    %s\n' "$1" "$2" "$found" >&2
        failures=$((failures + 1))
    fi
}

fail() {
    echo "$*" >&2
    failures=$((failures + 1))
}

diff_options='--all --common --help --only --output --strict --verbatim -h -o'
areas='alarm block: ont: pon port: profile: profiles-olt profiles-ont routes system terminal-vlans'
kinds='address-table cross-connect dba dhcp-ra dhcpv6-ra management ports pppoe-ia shaping template vlan voice'
blocks='backup cli config logging management network ntp olt route snmp source_guard ssh telnet user'

COMP_WORDBREAKS=$' \t\n"\'><=;|&(:'
expect 'pondiff ' '--help --version -h check diff pack show'
expect 'pondiff d' 'diff'
expect 'pondiff x' ''
expect 'pondiff --v' '--version'
expect 'pondiff diff -' "$diff_options"
expect 'pondiff diff --o' '--only --output'
expect 'pondiff diff a.bin --st' '--strict'
expect 'pondiff check -' '--help --strict -h'
expect 'pondiff pack -' '--help --output -h -o'
expect 'pondiff show --f' '--full'
expect 'pondiff diff --common ' '0 1 2'
expect 'pondiff diff --only ' "$areas"
expect 'pondiff diff --only p' 'pon port: profile: profiles-olt profiles-ont'
expect 'pondiff diff --only port:' '0 1 2 3 4 5 6 7'
expect 'pondiff diff --only profile:' "$kinds"
expect 'pondiff diff --only profile:dh' 'dhcp-ra dhcpv6-ra'
expect 'pondiff diff --only profile:vlan:' ''
expect 'pondiff diff --only block:' "$blocks"
expect 'pondiff diff --only block:s' 'snmp source_guard ssh'
expect 'pondiff diff --only ont:' ''
expect 'pondiff diff --only=t' 'terminal-vlans'
expect 'pondiff diff --only=block:n' 'network ntp'
expect 'pondiff diff --common=' '0 1 2'

# Names of files are left to the shell.
expect 'pondiff diff ' ''
expect 'pondiff diff --only alarm ' ''
expect 'pondiff diff -o ' ''
expect 'pondiff diff --output d' ''
expect 'pondiff diff -- -' ''
expect 'pondiff show --full ' ''
complete -p pondiff | grep -q -e '-o default' || fail "files are not completed"

# The line may go on behind the cursor.
[[ $(completed 'pondiff diff --only al orig.bin cfg.bin' 22) == alarm ]] || fail "the end of the line counts"

# Where colons do not separate words, all of the word is completed.
COMP_WORDBREAKS=$' \t\n"\'><;|&('
expect 'pondiff diff --only block:n' 'block:network block:ntp'
expect 'pondiff diff --only=block:n' '--only=block:network --only=block:ntp'

# A colon is waited for, a blank follows what is complete.
completed 'pondiff diff --only blo' >/dev/null
COMP_LINE='pondiff diff --only blo' COMP_POINT=23 options=''
_pondiff
[[ $options == *nospace* ]] || fail "a blank follows a colon"
COMP_LINE='pondiff diff --only al' COMP_POINT=22 options=''
_pondiff
[[ $options != *nospace* ]] || fail "no blank follows an area"

# The program knows just the same commands, options, areas, kinds and blocks.
sorted() { tr ' ' '\n' | sed '/^$/d' | LC_ALL=C sort -u | paste -sd' '; }
[[ $("$program" --help | sed -n '/^Commands:$/,/^$/ s/^  \([a-z]*\) .*/\1/p' | sorted) == "$(completed 'pondiff ' | tr ' ' '\n' | grep -v -e - | sorted)" ]] ||
    fail "the program has other commands"
for command in diff check pack show; do
    known=$("$program" "$command" --help | sed -n 's/^  \(-[^ ]*\) .*/\1/p' | tr ',' ' ' | sorted)
    [[ $known == "$(completed "pondiff $command -")" ]] || fail "pondiff $command has other options: $known"
done

# listed AREA: what the program's message about an unknown area lists
listed() {
    { "$program" diff --only "$1" a b 2>&1 || true; } | sed -n 's/.*there are \(.*\)/\1/p' | sed 's/,//g; s/ and / /' | sorted
}
[[ $(listed '?' | sed 's/:[^ ]*/:/g' | sorted) == "$areas" ]] || fail "the program has other areas: $(listed '?')"
[[ $(listed profile:) == "$kinds" ]] || fail "the program has other kinds of profiles: $(listed profile:)"
[[ $(listed block:) == "$blocks" ]] || fail "the program has other blocks: $(listed block:)"

[[ $failures -eq 0 ]]
