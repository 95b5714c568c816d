# Completion of vexlotap. The program itself is asked what it knows, so this is never behind it.

function __vexlotap_ask
    set -l words (commandline -opc)
    set -l folder
    if set -l place (contains -i -- --folder $words)
        set folder --folder $words[(math $place + 1)]
    end
    $words[1] $argv $folder 2>/dev/null
end

function __vexlotap_described
    # Lines of "  word VALUE  what it does" as word, tab, what it does.
    cat | string replace -rf '^  (--[^ ]+|[a-z]+)( [A-Z]+)? +(.*)$' '$1'\t'$3'
end

function __vexlotap_before
    set -l words (commandline -opc)
    contains -- $words[-1] $argv
end

set -l takes_a_value --to --as --group --folder --name --port --for --count --wait --away
complete -c vexlotap -f
complete -c vexlotap -n 'test (count (commandline -opc)) -eq 1' -a '(__vexlotap_ask --help | __vexlotap_described)'
complete -c vexlotap -n 'test (count (commandline -opc)) -eq 1' -l help -d 'shows the commands'
complete -c vexlotap -n 'test (count (commandline -opc)) -eq 1' -l version -d 'tells the version'
complete -c vexlotap -n '__vexlotap_before --to --as' -a '(__vexlotap_ask who --known | cut -f1)'
complete -c vexlotap -n '__vexlotap_before --group' -a '(__vexlotap_ask who --groups | cut -f1)'
complete -c vexlotap -n '__vexlotap_before --folder' -a '(__fish_complete_directories)'
complete -c vexlotap -n "test (count (commandline -opc)) -gt 1; and not __vexlotap_before $takes_a_value" \
    -a '(set -l words (commandline -opc); $words[1] $words[2] --help | __vexlotap_described)'
complete -c vexlotap -n '__fish_seen_subcommand_from record replay' -F
