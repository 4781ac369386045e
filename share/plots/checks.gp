# Checks that all plots share. A script sets `problem` and runs `eval refuse`: a text ends it with status 1.
refuse = "if (problem ne '') { print problem; exit status 1 }"
# `eval refuseError` ends the script after a command that has failed with a message of its own.
refuseError = "if (GPVAL_SYSTEM_ERRNO) { exit status 1 }"

# The text as one word of the shell.
quoted(s) = "'".escaped(s)."'"
escaped(s) = strstrt(s, "'") ? s[1:strstrt(s, "'") - 1]."'\\''".escaped(s[strstrt(s, "'") + 1:*]) : s
# An awk script of this folder with its options and files; awk's own functions ignore the locale.
awk(script, rest) = "LC_ALL=C awk -f ".quoted(here."/".script)." ".rest
option(name, value) = " -v ".name."=".quoted(value)
# An empty text if the file passes the shell's test, such as "-f"; otherwise what is missing.
need(test, name, what) = system("test ".test." ".quoted(name)." || echo ".quoted(name." is missing: expected ".what))
