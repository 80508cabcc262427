# shellcheck shell=bash
# Completes the command line of usmira-outil: its options, and behind -e the commands and what
# stands behind them. All names come from the help of the program itself.

# What the help has before what an option or a command does.
_usmira_outil_forms() {
    "$1" --aide 2>/dev/null | sed -nE 's/^  ([a-z-].{0,35}).*/\1/p'
}

# The words that the form of a command has in small letters, such as "bas|haut" or "[json]".
_usmira_outil_keywords() {
    [[ $2 =~ ^[a-z-]+$ ]] || return
    _usmira_outil_forms "$1" | sed -nE "s/^$2 +//p" | tr ' |[]' '\n' | grep -xE '[a-z]+|[01]'
}

# A command with its arguments is one word here and many to the program. Names of files are not
# completed in it: what has to be escaped in them depends on both.
_usmira_outil_command() {
    local program=$1 typed=$2 before last
    if [[ $typed != *' '* ]]; then
        mapfile -t COMPREPLY < <(
            compgen -W "$(_usmira_outil_forms "$program" | grep -o '^[a-z][^ ]*')" -- "$typed")
        return
    fi
    [[ ${COMP_WORDS[COMP_CWORD]} == [\'\"]* ]] || return
    last=${typed##* }
    before=${typed%"$last"}
    mapfile -t COMPREPLY < <(
        compgen -W "$(_usmira_outil_keywords "$program" "${typed%% *}")" -- "$last")
    # One by one: a substitution over the whole array would take an & in what is typed for what it
    # has matched.
    local i
    for i in "${!COMPREPLY[@]}"; do
        COMPREPLY[i]=$before${COMPREPLY[i]}
    done
}

_usmira_outil() {
    local program=${1/#'~/'/$HOME/} word=$2
    case $3 in
    -e)
        _usmira_outil_command "$program" "$word"
        return
        ;;
    --dossier | =)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(
            compgen -W "$(_usmira_outil_forms "$program" | grep -o '^-[^ ]*')" -- "$word")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _usmira_outil usmira-outil
