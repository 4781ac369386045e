# sorvik-run takes the arguments of sorvikPre, and options before them.
complete -c sorvik-run -w sorvikPre
set -l first 'test (count (commandline -opc)) -eq 1'
complete -c sorvik-run -n $first -s q -d 'Leave the usage text out'
complete -c sorvik-run -n $first -s h -l help -d 'Print the usage'
complete -c sorvik-run -n $first -l version -d 'Print the version'
