# Completion of ravelo(1) for bash.
# shellcheck shell=bash
_ravelo() {
    local current=${COMP_WORDS[COMP_CWORD]} words=
    local before=${COMP_WORDS[*]:1:COMP_CWORD-1}
    COMPREPLY=()
    case $before in
    '') words='timer shelf pause resume ignore-next export import erase --toggle --settings --setup --updates --status --status=json --status=waybar --status=tmux --store-usage --take-over --quit --help --version' ;;
    --store-usage) words='--print' ;;
    --version) words='--verbose' ;;
    timer) words='start stop status' ;;
    'timer status') words='--json' ;;
    shelf) words='list' ;;
    pause) words='15 60 --status' ;;
    'pause --status') words='--json' ;;
    'shelf list') words='--null --json' ;;
    erase) words='--yes' ;;
    timer\ * | shelf\ * | erase\ * | pause\ * | resume* | ignore-next* | --[a-z]*) return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    case $before in
    timer* | shelf* | erase* | pause* | resume* | ignore-next* | --[a-z]*) ;;
    *)
        compopt -o filenames
        local file
        while IFS= read -r file; do COMPREPLY+=("$file"); done < <(compgen -f -- "$current")
        ;;
    esac
}
complete -F _ravelo ravelo
