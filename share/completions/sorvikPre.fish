# fish completion of sorvikPre; options follow their task.
function __sorvikPre_task
    set -l words (commandline -opc)
    contains -- $argv[1] $words
end

function __sorvikPre_files
    for ending in $argv
        __fish_complete_suffix .$ending
    end
end

complete -c sorvikPre -f

set -l none 'not __sorvikPre_task -meshConvert; and not __sorvikPre_task -nemoh; and not __sorvikPre_task -waveElevation; and not __sorvikPre_task -toJSON'
complete -c sorvikPre -n $none -o meshConvert -d 'Convert a hull mesh'
complete -c sorvikPre -n $none -o nemoh -d 'Make a Nemoh project'
complete -c sorvikPre -n $none -o waveElevation -d 'Write the surface elevation'
complete -c sorvikPre -n $none -o toJSON -d 'Write an input file as JSON'

set -l convert '__sorvikPre_task -meshConvert'
complete -c sorvikPre -n $convert -k -a '(__sorvikPre_files stl STL gdf GDF dat DAT nem)'
complete -c sorvikPre -n $convert -o origin -x -d 'Point of the mesh that becomes the origin: x y z'
complete -c sorvikPre -n $convert -o wet -x -d 'Write only what lies below this level'

set -l reads '__sorvikPre_task -nemoh; or __sorvikPre_task -toJSON; or __sorvikPre_task -waveElevation'
complete -c sorvikPre -n $reads -o f -x -k -a '(__sorvikPre_files m json)' -d 'Input file'

set -l waves '__sorvikPre_task -waveElevation'
complete -c sorvikPre -n $waves -o i -x -k -a '(__sorvikPre_files m json)' -d 'Input file'
complete -c sorvikPre -n $waves -o xyFile -r -F -d 'File of probes, x y a row'
complete -c sorvikPre -n $waves -o domain -x -d 'Grid of probes: sizes and cells along x and y'
complete -c sorvikPre -n $waves -o positions -x -d 'Probes: x y x y ...'
complete -c sorvikPre -n $waves -o o -x -a '(__fish_complete_directories)' -d 'Folder of the results'
complete -c sorvikPre -n $waves -o output -x -a '(__fish_complete_directories)' -d 'Folder of the results'
complete -c sorvikPre -n $waves -o API -d 'The input names the folder of the results'
complete -c sorvikPre -n $waves -o r -x -a '(__fish_complete_directories)' -d 'Results of an earlier run'
complete -c sorvikPre -n $waves -o results -x -a '(__fish_complete_directories)' -d 'Results of an earlier run'
complete -c sorvikPre -n $waves -o startState -x -a '(__fish_complete_directories)' -d 'Results of an earlier run'
