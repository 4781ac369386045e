# sorvik-run takes the arguments of sorvikPre.
complete -c sorvik-run -w sorvikPre
