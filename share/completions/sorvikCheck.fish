# fish completion of sorvikCheck and sorvikView; commands and options come from their own help.
function __sorvik_commands
    set -l words (commandline -opc)
    $words[1] --help 2>/dev/null | awk 'isList && /^  [a-z]/ { name = $1; $1 = ""; print name "\t" substr($0, 2) }
        tolower($1) == "subcommands:" { isList = 1 }'
end

function __sorvik_options
    set -l words (commandline -opc)
    $words[1] $words[2] --help 2>/dev/null | string match -ar -- '--[a-z][a-z0-9-]*' | sort -u
end

for program in sorvikCheck sorvikView
    complete -c $program -n __fish_use_subcommand -f -a '(__sorvik_commands)'
    complete -c $program -n __fish_use_subcommand -l version -d 'Print the version'
    complete -c $program -n 'not __fish_use_subcommand' -a '(__sorvik_options)'
end
