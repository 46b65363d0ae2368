# bash completion for veldmarkctl and veldmark

_veldmarkctl()
{
    local word=${COMP_WORDS[COMP_CWORD]} choices=
    local settings="strictMode allowLocalNetwork exitCountry customTorPath bridgeChoice customBridges bypassApps
        autoConnect optimizeSpeed terminalMode"
    if ((COMP_CWORD == 1)); then
        choices="run status connect disconnect restore check fix-dns circuits close-circuit new-identity log bridges
            download-transports apps launch doctor get set help --help --version"
    else
        case ${COMP_WORDS[1]} in
        run) choices="--connect" ;;
        status) choices="--json --watch" ;;
        circuits | bridges | apps | doctor) choices="--json" ;;
        launch) # a name, or a path
            [[ $word == */* ]] || return
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            return
            ;;
        log) choices="--follow --problems" ;;
        get)
            ((COMP_CWORD != 2)) || choices="$settings activeBridge activeMode bootstrapProblem bootstrapProgress bytesRead
                bytesWritten canCancel circuitError circuits dnsStatus errorMessage exitIP isChecking isOptimizing killSwitch
                killSwitchSince latencyMs leakStatus level menuBarSymbol optimizeStatus otherSession passwordlessInstalled phase
                startupError statusDetail terminalError title torVerified transportDownload transports"
            ;;
        set)
            if ((COMP_CWORD == 2)); then
                choices=$settings
            elif ((COMP_CWORD == 3)); then
                case ${COMP_WORDS[2]} in
                strictMode | allowLocalNetwork | autoConnect | optimizeSpeed | terminalMode) choices="true false" ;;
                bridgeChoice) choices="off obfs4 snowflake meek custom" ;;
                customTorPath)
                    compopt -o filenames 2>/dev/null
                    mapfile -t COMPREPLY < <(compgen -f -- "$word")
                    return
                    ;;
                esac
            fi
            ;;
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
