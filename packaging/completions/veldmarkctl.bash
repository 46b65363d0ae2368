# bash completion for veldmarkctl and veldmark

# _veldmarkctl_words WHAT [OF]: the words that the program itself offers.
_veldmarkctl_words()
{
    "${COMP_WORDS[0]}" complete "$@" 2>/dev/null | cut -d: -f1
}

_veldmarkctl_files()
{
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$1")
}

_veldmarkctl()
{
    local word=${COMP_WORDS[COMP_CWORD]} choices=
    if ((COMP_CWORD == 1)); then
        choices="$(_veldmarkctl_words commands) --help --version"
    else
        case ${COMP_WORDS[1]} in
        launch) # a name, or a path
            [[ $word != */* ]] || _veldmarkctl_files "$word"
            return
            ;;
        add-bridges)
            _veldmarkctl_files "$word"
            return
            ;;
        get) ((COMP_CWORD != 2)) || choices=$(_veldmarkctl_words fields) ;;
        set)
            if ((COMP_CWORD == 2)); then
                choices=$(_veldmarkctl_words settings)
            elif ((COMP_CWORD == 3)) && [[ ${COMP_WORDS[2]} == customTorPath ]]; then
                _veldmarkctl_files "$word"
                return
            elif ((COMP_CWORD == 3)); then
                choices=$(_veldmarkctl_words values "${COMP_WORDS[2]}")
            fi
            ;;
        report)
            if [[ ${COMP_WORDS[COMP_CWORD - 1]} == --output ]]; then
                _veldmarkctl_files "$word"
                return
            fi
            choices=$(_veldmarkctl_words options report)
            ;;
        *) choices=$(_veldmarkctl_words options "${COMP_WORDS[1]}") ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$word")
}

_veldmark()
{
    mapfile -t COMPREPLY < <(compgen -W "--hidden --connect --help --version" -- "${COMP_WORDS[COMP_CWORD]}")
}

complete -F _veldmarkctl veldmarkctl
complete -F _veldmark veldmark
