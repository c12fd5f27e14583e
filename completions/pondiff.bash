# Completion of pondiff for bash.

# Completes the last word of the line by the words given.
_pondiff_words() {
    mapfile -t COMPREPLY < <(compgen -W "$2" -- "$1")
    # Readline completes what stands behind the last colon or equals sign alone, where those separate words.
    local separator
    for separator in : =; do
        if [[ $1 == *"$separator"* && $COMP_WORDBREAKS == *"$separator"* ]]; then
            COMPREPLY=("${COMPREPLY[@]#"${1%"$separator"*}$separator"}")
            return
        fi
    done
}

_pondiff_area() {
    local kinds="address-table cross-connect dba dhcp-ra dhcpv6-ra management ports voice pppoe-ia shaping vlan template"
    local blocks="olt network backup cli config management ntp snmp ssh source_guard telnet logging user route"
    local areas="system pon profiles-olt profiles-ont alarm routes terminal-vlans" family
    case $1 in
    ont:* | profile:*:*) areas='' ;;
    port:*) areas=$(printf 'port:%s ' {0..7}) ;;
    profile:*)
        # shellcheck disable=SC2086 # a list of words
        areas=$(printf 'profile:%s ' $kinds)
        ;;
    block:*)
        # shellcheck disable=SC2086
        areas=$(printf 'block:%s ' $blocks)
        ;;
    *)
        for family in ont: port: profile: block:; do
            [[ $family == "$1"* ]] && compopt -o nospace 2>/dev/null
            areas+=" $family"
        done
        ;;
    esac
    # No file is meant.
    compopt +o default +o bashdefault 2>/dev/null
    # shellcheck disable=SC2086
    _pondiff_words "$2$1" "$(printf -- "$2%s " $areas)"
}

_pondiff() {
    local line=${COMP_LINE:0:COMP_POINT} words word='' previous='' command='' only_files='' i
    # By blanks alone: colons and equals signs are parts of words here.
    read -ra words <<<"$line"
    [[ $line == *[[:blank:]] ]] || word=${words[-1]}
    [[ -z $word ]] || unset 'words[-1]'
    for ((i = 1; i < ${#words[@]}; i++)); do
        previous=${words[i]}
        case $previous in
        --) only_files=1 ;;
        -*) ;;
        *) command=${command:-$previous} ;;
        esac
    done

    COMPREPLY=()
    if [[ -z $command ]]; then
        _pondiff_words "$word" "diff check pack show -h --help --version"
        return
    fi
    [[ -z $only_files ]] || return
    case $command:$previous in
    diff:--only) _pondiff_area "$word" "" ;;
    diff:--common) _pondiff_words "$word" "0 1 2" ;;
    *:-o | *:--output) ;;
    *)
        case $command:$word in
        diff:--only=*) _pondiff_area "${word#--only=}" --only= ;;
        diff:--common=*) _pondiff_words "$word" "--common=0 --common=1 --common=2" ;;
        diff:-*) _pondiff_words "$word" "-h --help --all --common --only --strict --verbatim -o --output" ;;
        check:-*) _pondiff_words "$word" "-h --help --strict" ;;
        pack:-*) _pondiff_words "$word" "-h --help -o --output" ;;
        show:-*) _pondiff_words "$word" "-h --help --full -o --output" ;;
        esac
        ;;
    esac
}

# Where no word fits, the names of files do.
complete -o default -o bashdefault -F _pondiff pondiff
