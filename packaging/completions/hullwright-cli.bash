# Completion of hullwright-cli in bash. It needs no other functions, so that it also works when it is sourced alone.

_hullwright_cli() {
    local cur=$2 prev=$3 verb=${COMP_WORDS[1]} words='' files='xml|dxf' option=
    COMPREPLY=()

    # "--side=top" comes as three words where the equals sign breaks words.
    if [[ $cur == "=" ]]; then
        option=$prev cur=
    elif [[ $prev == "=" && COMP_CWORD -ge 2 ]]; then
        option=${COMP_WORDS[COMP_CWORD-2]}
    elif [[ $prev == -* && COMP_CWORD -gt 2 ]]; then
        option=$prev
    fi

    if (( COMP_CWORD == 1 )); then
        COMPREPLY=( $(compgen -W 'check diff export import info render report --help --version' -- "$cur") )
        return
    fi

    case $verb:$option in
        import:--side | import:-s | diff:--side | diff:-s) words='top bottom right left front rear' ;;
        export:--side | export:-s | render:--side | render:-s) words='top bottom right left front rear all' ;;
        render:--grid | render:-g | render:--symbols | render:-y) words='on off' ;;
        export:--format | export:-f) words='dxf geojson csv svg' ;;
        export:--dxf-version | export:-d) words='R2000 R12' ;;
        export:--layer-by | export:-l) words='side kind' ;;
        render:--size | render:-z) words='800x500 1600x1000 3200x2000' ;;
        render:--view | render:-v | diff:--tolerance | diff:-t) return ;;
        import:--into | import:-i | import:--output | import:-o) files='xml' ;;
        export:--output | export:-o) files='dxf|geojson|csv|svg' ;;
        render:--output | render:-o | diff:--output | diff:-o) files='png|svg|pdf' ;;
        report:--output | report:-o) files='pdf' ;;
        *) option= ;;
    esac
    if [[ -n $words ]]; then
        COMPREPLY=( $(compgen -W "$words" -- "$cur") )
        return
    fi

    if [[ -z $option && $cur == -* ]]; then
        case $verb in
            check) words='--help' ;;
            diff) words='--tolerance --side --json --output --help' ;;
            export) words='--side --format --dxf-version --layer-by --output --help' ;;
            import) words='--into --side --output --json --help' ;;
            info) words='--json --help' ;;
            render) words='--side --size --fit --view --grid --symbols --sheet --output --help' ;;
            report) words='--output --help' ;;
        esac
        COMPREPLY=( $(compgen -W "$words" -- "$cur") )
        return
    fi

    case $verb:$option in
        check:* | export: | report:) files='xml' ;;
        import:) files='dxf' ;;
    esac
    compopt -o filenames 2>/dev/null
    local name
    while IFS= read -r name; do
        COMPREPLY+=("$name")
    done < <(compgen -d -- "$cur"; shopt -s extglob nocasematch; compgen -f -X "!*.@($files)" -- "$cur")
}

complete -F _hullwright_cli hullwright-cli
