#!/usr/bin/env bash
# What bash and zsh complete: types command lines into a shell, tabs included.
#   completions_test.sh SHELL PROGRAM
# The candidates themselves are tested in tests/program/complete_test.cpp.
# shellcheck disable=SC2016 # what is typed is for the shell that is tested
set -euo pipefail
shell=$1
program=$(realpath "$2")
completions=$(realpath "$(dirname "$0")/../../completions")
for tool in "$shell" script; do
    command -v "$tool" >/dev/null || {
        echo "skipped: there is no $tool"
        exit 77
    }
done

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
mkdir files
touch files/running.json
mkfifo answers

failures=0
fail() {
    echo "$*" >&2
    failures=$((failures + 1))
}

# The lines that are typed run this function, which hands on its arguments; the completions run the program.
cat >setup <<'EOF'
PS1='> '
pondiff() { printf '<%s>' "$@" >answers && echo >answers; }
EOF
case $shell in
bash)
    command=(bash --norc --noprofile -i)
    echo "source '$completions/pondiff.bash'" >>setup
    ;;
zsh)
    command=(zsh -f -i)
    echo "fpath=('$completions' \$fpath); autoload -U compinit; compinit -u -D; bindkey '^I' complete-word" >>setup
    ;;
esac
export PATH=${program%/*}:$PATH TERM=dumb HOME=$folder
coproc typing { script -qec "${command[*]}" /dev/null; }
exec 3<>answers 4<&"${typing[0]}" 5>&"${typing[1]}"
cat <&4 >>screen &

answer=
await_answer() {
    answer=
    IFS= read -r -t 60 answer <&3 || fail "no answer: $(cat -v screen)"
}

# Types keys once the shell reads them one by one: before that, the terminal itself would take some away.
terminal=
enter() {
    local tries
    for ((tries = 0; tries < 1000; ++tries)); do
        [[ -n $terminal && $(stty -F "$terminal" -a) != *' -icanon'* ]] || break
        sleep 0.01
    done
    printf '%b\n' "$1" >&5
    await_answer
}

# expect KEYS WORDS: what is typed behind "pondiff", and the words that the completed line has.
expect() {
    enter "pondiff $1"
    [[ $answer == "$2" ]] || fail "$shell: of \"$1\""$'\n'"expected: $2"$'\n'"found:    $answer"
}

# expect_list KEYS WORD...: what is shown where several words fit.
expect_list() {
    local word tries
    : >screen
    enter "pondiff $1\t\t\025pondiff list"
    [[ $answer == '<list>' ]] || fail "$shell: of \"$1\", typed and taken back: $answer"
    for word in "${@:2}"; do
        for ((tries = 0; tries < 100; ++tries)); do
            ! grep -qF -e "$word" screen || continue 2
            sleep 0.1
        done
        fail "$shell: of \"$1\": there is no \"$word\" in:"$'\n'"$(cat -v screen)"
    done
}

enter 'tty >answers'
terminal=$answer
enter '. ./setup; echo >answers'
mapfile -t commands < <("$program" complete -- '' | cut -f 1)
[[ ${#commands[@]} -gt 3 ]] || fail "the program prints no commands"
expect_list '' "${commands[@]}"
expect_list 'diff --only port:' 0 1 2 3 4 5 6 7
[[ $shell == bash ]] || expect_list 'diff -' '-- Compare one area alone'

# A blank follows a whole word, and more of the word follows a colon.
expect 'sh\t--fu\tfiles/run\t' '<show><--full><files/running.json>'
expect 'di\t--on\tblo\tnt\t' '<diff><--only><block:ntp>'
expect 'diff --only=prof\t:ma\tx' '<diff><--only=profile:management><x>'
expect 'diff --only=bloc\tnt\tx' '<diff><--only=block:ntp><x>'
expect 'diff --only ont:\tx' '<diff><--only><ont:x>'
expect 'diff --common=1\tx' '<diff><--common=1><x>'
expect 'diff --output=fil\trun\tx' '<diff><--output=files/running.json><x>'
expect 'diff -- fil\trun\tx' '<diff><--><files/running.json><x>'
expect 'unknown fil\t' '<unknown><fil>'
# What follows the cursor stays.
expect 'diff --only al files\002\002\002\002\002\002\t' '<diff><--only><alarm><files>'

# Nothing that is typed is run, and nothing is printed about it.
expect 'diff \047$(touch harm)\047 --ver\t' '<diff><$(touch harm)><--verbatim>'
expect 'diff \047$x*\047 --ver\t' '<diff><$x*><--verbatim>'
expect 'diff \047`touch harm`\047\t \047;touch harm;\047\t' '<diff><`touch harm`><;touch harm;>'
expect_list 'diff $(touch harm'
expect_list 'diff `touch harm'
expect_list 'diff --only "$(touch harm)'
expect_list 'diff --only=a[$(touch harm)]'
expect_list 'diff \026\033[31m --only \026\001\026\177x'
[[ ! -e harm ]] || fail "$shell: a word that was typed has been run"

if [[ $shell == bash ]]; then
    enter 'COMP_WORDBREAKS=${COMP_WORDBREAKS//[:=]/}; echo >answers'
    expect 'diff --only blo\tnt\t' '<diff><--only><block:ntp>'
    expect 'diff --only=blo\tnt\tx' '<diff><--only=block:ntp><x>'
fi

# Without the program, nothing is completed and nothing is printed.
enter 'PATH=/nowhere; echo >answers'
: >screen
expect 'sh\t' '<sh>'
expect 'show fil\t' '<show><fil>'
sleep 0.2
! grep -e 'not found' -e 'No such' screen || fail "$shell: an error is printed"

[[ $failures -eq 0 ]]
