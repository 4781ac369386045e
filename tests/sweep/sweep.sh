#!/usr/bin/env bash
# sweep.sh PROGRAM WRAPPER EXAMPLE: 200 cases, two of them bad, one job at a time, and two at a time,
# killed half-way and resumed by two sweeps at once. The results must be the same to the byte, and no
# case may be run twice. The single jobs are those of sweep.sbatch, with a stand-in for srun.
program=$1 wrapper=$2 example=$3 session=none
command -v parallel >/dev/null || exit 77
work=$(mktemp -d)
sweep=(parallel --will-cite --joblog log --resume-failed --header : --colsep '\t'
    ./runCase '{case}' :::: cases.tsv)
endSession() { # GNU parallel makes a process group of each job
    while pids=$(pgrep --session "$session" --runstates DRST); do xargs kill -KILL <<<"$pids"; done
} 2>/dev/null
trap 'endSession; rm -rf "$work"' EXIT
fail() { echo "$*" && exit 1; }
count() { ./collect | cut -f 10 | grep -cx "$1"; }
cp -r "$example" "$work/one" && cd "$work/one" && sed -i 's/= 400;/= 40;/' case.m.in || exit 2
awk 'BEGIN { OFS = "\t"; print "case", "Hs", "Tp", "direction", "seed"
    for (i = 1; i <= 200; i++) # runCase refuses text, the program a Tp that is too short.
        print sprintf("c%03d", i), i == 50 ? "2,5" : 1 + i / 40, i == 17 ? 0.01 : 6 + i % 8, i, i
}' >cases.tsv
mkdir "$work/bin" && cat >"$work/bin/sorvikPre" <<END
#!/bin/sh
[ "\$1" != -waveElevation ] || echo run >>../../runs
# With HALF set, what begins after 100 results stops in the middle of its table.
if [ -n "\$HALF" ] && [ "\$(ls .. | grep -vc part)" -ge 100 ]; then
    printf half >waveElevation.dat && exec sleep 600
fi
exec "$program" "\$@"
END
chmod +x "$work/bin/sorvikPre" && cp "$wrapper" "$work/bin" && cp -r . ../two || exit 2
export PATH="$work/bin:$PATH" TMPDIR=$work
# shellcheck disable=SC2016
printf '#!/bin/sh\nwhile [ "$1" != ./runCase ]; do shift; done\nexec "$@"\n' >"$work/bin/srun"
chmod +x "$work/bin/srun"
SLURM_SUBMIT_DIR=$PWD SLURM_NTASKS=1 SLURM_JOB_ID=1 SLURM_JOB_NUM_NODES=1 sh ./sweep.sbatch 2>said & one=$!

cd ../two && export PARALLEL='--jobs 2'
HALF=yes setsid "${sweep[@]}" 2>said & session=$!
for ((i = 0; i < 600 && $(grep -lxs half results/*.part/*.dat | wc -l) < 2; ++i)); do sleep .1; done
endSession
done=$(find results -maxdepth 1 -name 'c???' | wc -l)
((100 <= done && done < 110 && $(count ok) == done)) || fail "$done cases done, $(count ok) ok"
rm runs
"${sweep[@]/#log/log2}" 2>>said & other=$!
"${sweep[@]}" 2>>said
(($? == 2)) || fail "The bad cases do not fail alone: $(cat said)"
wait "$other"
(($? == 2 && $(count ok) == 198)) || fail "The bad cases do not fail alone in the second sweep: $(cat said)"
(($(wc -l <runs) == 200 - done)) || fail "$(wc -l <runs) runs for $((198 - done)) cases and a bad one, twice"
wait "$one"
(($? == 1 && $(wc -l <../one/sweep-1.log) == 5 && $(grep -c 'ok$' ../one/sweep.tsv) == 198)) || fail "One job: $(cat ../one/said)"
diff -r ../one/results results || fail "The resumed sweep differs"
if command -v snakemake >/dev/null; then # It brings too much to be asked for.
    (cp -r "$example" ../three && cd ../three && snakemake --cores 2 --quiet all &&
        (($(count ok) == 12 && $(grep -c 'ok$' sweep.tsv) == 12)) && [ -s sweep.svg ]) 2>said ||
        fail "Snakemake: $(cat said)"
fi
ln -sf /bin/false "$work/bin/sorvikPre"
! ./runCase --check 2>/dev/null || fail "A program that does not run passes the check"
./runCase c001 || fail "A case that was done is run again"
sed -i 's/3[.]3;/1;/' case.m.in
if ./runCase c001 2>/dev/null || (($(count stale) != 198)); then fail "Old results count"; fi
