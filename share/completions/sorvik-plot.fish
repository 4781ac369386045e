# fish completion of sorvik-plot; options follow the kind of plot.
set -l kinds elevation spectrum surface hull
set -l none "not __fish_seen_subcommand_from $kinds"
complete -c sorvik-plot -n $none -f -a elevation -d 'The elevation at the probes over time'
complete -c sorvik-plot -n $none -f -a spectrum -d 'The spectrum of the signal of a probe'
complete -c sorvik-plot -n $none -f -a surface -d 'The surface on a grid'
complete -c sorvik-plot -n $none -f -a hull -d 'A hull, its wetted surface and its waterline'
complete -c sorvik-plot -s h -l help -d 'Print the usage'
complete -c sorvik-plot -l version -d 'Print the version'

complete -c sorvik-plot -n '__fish_seen_subcommand_from elevation spectrum surface' -s f -l input -r -F -d 'Input of the run, for the title'
complete -c sorvik-plot -n '__fish_seen_subcommand_from elevation' -l probe -x -d 'Probes, 1,2,...'
complete -c sorvik-plot -n '__fish_seen_subcommand_from elevation' -l xy-file -r -F -d 'File of probes'
complete -c sorvik-plot -n '__fish_seen_subcommand_from spectrum' -l probe -x -d 'Number of the probe'
complete -c sorvik-plot -n '__fish_seen_subcommand_from spectrum' -l from -x -d 'Start of the span [s]'
complete -c sorvik-plot -n '__fish_seen_subcommand_from spectrum' -l to -x -d 'End of the span [s]'
complete -c sorvik-plot -n '__fish_seen_subcommand_from spectrum' -l segment -x -d 'Length of the averaged segments [s]'
complete -c sorvik-plot -n '__fish_seen_subcommand_from spectrum' -l smooth -x -d 'Number of averaged frequencies'
complete -c sorvik-plot -n '__fish_seen_subcommand_from spectrum' -l jonswap -x -d 'Curve HS,FP,GAMMA [m, Hz]'
complete -c sorvik-plot -n '__fish_seen_subcommand_from surface' -l time -x -d 'First instant at or after it [s]'
complete -c sorvik-plot -n '__fish_seen_subcommand_from hull' -l wet -x -d 'Water level above the origin [m]'
complete -c sorvik-plot -n '__fish_seen_subcommand_from hull' -l origin -x -d 'Point that becomes the origin: X,Y,Z [m]'
