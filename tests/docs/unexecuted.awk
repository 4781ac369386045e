# Lists the command lines of a document outside its console fences, except synopses.
/^```/ { fence = fence == "" ? (length($0) > 3 ? substr($0, 4) : "text") : ""; next }
fence == "console" || (fence == "" && !/^    /) { next }
{ sub(/^ +/, "") }
/^(scripts|\.ci)\// || /^\$ / { print; next }
/^(sorvikPre|sorvikCheck|sorvikView|sorvik-run|sorvik-plot|gnuplot|awk|cmake|ctest|sh|bash) / && !/[A-Z][A-Z]|[<[][a-z]/ { print }
