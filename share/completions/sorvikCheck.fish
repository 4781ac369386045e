# fish completion of sorvikCheck; the options come from its own help.
function __sorvikCheck_options
    set -l words (commandline -opc)
    $words[1] $words[2] --help 2>/dev/null | string match -ar -- '--[a-z][a-z0-9-]*' | sort -u
end

set -l commands hull input sea project results
set -l none "not __fish_seen_subcommand_from $commands"
complete -c sorvikCheck -n $none -f -a hull -d 'Check a mesh and its hydrostatics'
complete -c sorvikCheck -n $none -f -a input -d 'Check an input file'
complete -c sorvikCheck -n $none -f -a sea -d 'Check the sea of an input file'
complete -c sorvikCheck -n $none -f -a project -d 'Check a Nemoh project'
complete -c sorvikCheck -n $none -f -a results -d 'Check the results of Nemoh'
complete -c sorvikCheck -n $none -l version -d 'Print the version'
complete -c sorvikCheck -n "__fish_seen_subcommand_from $commands" -a '(__sorvikCheck_options)'
