# completion.sh COMPLETION PROGRAM: what is offered on the command line of usmira-outil.
. "$1"
program=$2
compopt() { :; } # readline alone has it

# offers EXPECTED BEFORE WORD: behind the word BEFORE, where WORD is typed, within quotes or not.
offers() {
    COMP_WORDS=("$program" "$2" "${4-}$3") COMP_CWORD=2 COMPREPLY=()
    _usmira_outil "$program" "$3" "$2"
    local got
    got=$(printf '%s|' "${COMPREPLY[@]}")
    [ "$got" = "$1|" ] || { echo "$2 $3: $got instead of $1|"; failed=yes; }
}

cd "$(mktemp -d)" || exit 1
trap 'rm -r "$PWD"' EXIT
touch 'Le Loup.usm'
offers 'compter|combler|compiler-rtf' -e com
offers '--aide' '' --a
offers 'deplacer 1 2 3 haut' -e 'deplacer 1 2 3 ha' "'"
offers '' -e 'ouvrir Le' "'"
offers '' -e '[ s' "'"
offers 'Le Loup.usm' x Le
[ -z "${failed-}" ]
