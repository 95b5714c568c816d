# Completion of vexlotap. The program itself is asked what it knows, so this is never behind it.

# The own options of the command line that tell the folder, for a question to the program.
_vexlotap_folder() {
    local place
    for ((place = 2; place < COMP_CWORD - 1; place++)); do
        [[ ${COMP_WORDS[place]} == --folder ]] && printf '%s\n' "${COMP_WORDS[place + 1]}"
    done
}

# Offers the lines of standard input that begin with the word, in any case. They are never given to
# the shell to be read: names come from the network.
_vexlotap_offer() {
    local word=${COMP_WORDS[COMP_CWORD]} quote='' line
    case $word in
        [\"\']*) quote=${word:0:1} word=${word:1} ;;
        *) word=${word//\\/} ;;
    esac
    while IFS= read -r line; do
        [[ ${line,,} == "${word,,}"* ]] || continue
        if [[ -n $quote && $line != *[\"\'\$\`\\\!]* ]]; then
            COMPREPLY+=("$quote$line$quote")
        else
            COMPREPLY+=("$(printf '%q' "$line")")
        fi
    done
}

_vexlotap() {
    local tap=${COMP_WORDS[0]} command=${COMP_WORDS[1]} before=${COMP_WORDS[COMP_CWORD - 1]} folder
    COMPREPLY=()
    tap=${tap/#\~\//$HOME/}
    if ((COMP_CWORD == 1)); then
        _vexlotap_offer < <("$tap" --help | awk '/^  [a-z]/ { print $1 }' && printf '%s\n' --help --version)
        return
    fi
    folder=$(_vexlotap_folder)
    case $before in
        --to | --as)
            _vexlotap_offer < <("$tap" who --known ${folder:+--folder "$folder"} 2>/dev/null | cut -f1) ;;
        --group)
            _vexlotap_offer < <("$tap" who --groups ${folder:+--folder "$folder"} 2>/dev/null | cut -f1) ;;
        --folder)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "${COMP_WORDS[COMP_CWORD]}") ;;
        --name | --port | --for | --count | --wait | --away) ;;
        *)
            if [[ ${COMP_WORDS[COMP_CWORD]} == -* ]]; then
                _vexlotap_offer < <("$tap" "$command" --help | awk '/^  --/ { print $1 }')
            elif [[ $command == re[cp]* ]]; then
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]}")
            fi ;;
    esac
}

complete -F _vexlotap vexlotap
