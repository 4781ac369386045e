#!/usr/bin/env bash
# limits.sh PROGRAM DATA: feeds the tasks with hostile inputs of up to 1 MB, counts that are too large,
# and numbers that are none. Each run ends within 10 s of processor time and
# 512 MB, or with a message.
program=$1 data=$2 runs=0 faults=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$data"/input/* "$work" && cd "$work" || exit 2
printf 'environment.wave = { type = custom\nfile = bad.m }\n' >custom.m
# attempt WHAT TASK: runs the program within its limits.
attempt() {
    local status=0 words
    read -ra words <<<"$2" && runs=$((runs + 1))
    (ulimit -t 10 -v 524288 && exec "$program" "${words[@]}") >out.txt 2>&1 || status=$?
    [[ $status =~ ^(0|1|255)$ ]] || { echo "$1, $2: status $status" && faults=$((faults + 1)); }
}
while read -r what count format; do
    perl -e '($n, $t) = @ARGV; $t =~ s/\\n/\n/g; $t =~ s/\\x(..)/chr hex $1/ge;
        printf $t, $_, $_ + 1, $_ + 1 for 1 .. $n' "$count" "$format" >bad.m
    for ending in json stl gdf dat; do cp bad.m "bad.$ending"; done
    cat body.m bad.m >body2.m
    while read -r task; do attempt "$what" "$task"; done <"$data/hostileTasks"
done <"$data/hostile"
for count in '\0\0\0\0' '\1\0\0\0' '\3\0\0\0' '\377\377\377\177' '\0\0\0\200' '\377\377\377\377'; do
    for records in 0 1 2; do
        (head -c 80 body.m && printf %b "$count" && head -c $((50 * records)) /dev/zero | tr '\0' '\377') >a.stl
        attempt "$records records for $count" '-meshConvert a.stl x.stl -wet 0'
    done
done
for file in box.dat panel.stl body.m regular.m sea.m sea.txt probes; do
    for value in nan inf -inf 1e300; do
        for ((n = 1; ; ++n)); do
            perl -pe 's/(?<![\w.])-?\d[\d.e-]*/++$n == '"$n ? '$value'"' : $&/ge' "$data/input/$file" >"$file"
            cmp -s "$file" "$data/input/$file" && break
            while read -r _ _ task; do attempt "$value for number $n of $file" "$task"; done <"$data/tasks"
        done
    done
done
echo "$runs runs, $faults faults" && exit $((faults > 0))
