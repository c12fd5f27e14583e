# Completion of pondiff for bash. The program prints the candidates; nothing here needs to know its commands.

_pondiff() {
    local line=${COMP_LINE:0:COMP_POINT} words=() word='' candidate separator
    # Split at blanks alone: colons and equals signs are parts of words here.
    read -rd '' -a words <<<"$line"
    if [[ $line != *[[:space:]] ]]; then
        word=${words[-1]}
        unset 'words[-1]'
    fi

    COMPREPLY=()
    while IFS= read -r candidate; do
        if [[ $candidate == files ]]; then
            compopt -o default -o bashdefault
            return
        fi
        COMPREPLY+=("${candidate%%$'\t'*}")
        [[ ${COMPREPLY[-1]} != *: ]] || compopt -o nospace
    done < <(command pondiff complete -- "${words[@]:1}" "$word" 2>/dev/null)

    # Readline replaces only what follows the last separator of the word.
    for separator in : =; do
        if [[ $word == *"$separator"* && $COMP_WORDBREAKS == *"$separator"* ]]; then
            COMPREPLY=("${COMPREPLY[@]#"${word%"$separator"*}$separator"}")
            return
        fi
    done
}

complete -F _pondiff pondiff
