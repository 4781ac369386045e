# Turns a document into a shell script that prints the document with new output: its text unchanged, and below
# each command of its console fences what it prints now, with an exit status other than 0 as [STATUS].
function quoted(text) { gsub(/'/, "'\\''", text); return "'" text "'" }
function flush_command() {
    if (command == "") return
    print "{ " command "\n} >\"$said\" 2>&1 </dev/null; status=$?; awk 1 \"$said\""
    print "[ $status -eq 0 ] || echo \"[$status]\""
    command = ""
}
fence == "console" && /^\$ / { flush_command(); command = substr($0, 3) }
fence == "console" && /^> / && command != "" && !output { command = command "\n" substr($0, 3) }
/^```/ { flush_command(); fence = fence == "" ? (length($0) > 3 ? substr($0, 4) : "text") : "" }
fence != "console" || /^\$ |^```/ || (/^> / && command != "") { print "printf '%s\\n' " quoted($0); output = 0; next }
{ output = 1 }
