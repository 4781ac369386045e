#!/usr/bin/env bash
# unknownCommand.sh PROGRAM: refuses what is no command, and names the commands.
set -u
status=0
said=$("$1" hul barge.stl --level 1 2>&1) || status=$?
for text in 'Found hul, expected a command: hull, ' 'project' 'sea' 'Run with --help'; do
    [[ $said == *"$text"* ]] || status="$status without \"$text\""
done
[ "$status" = 2 ] || { echo "status $status: $said" && exit 1; }
