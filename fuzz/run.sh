#!/bin/sh
# Runs every fuzzer in turn, sharing SECONDS among them:
#   sh fuzz/run.sh BUILD_DIR SECONDS          one stint per fuzzer, stops at a finding
#   sh fuzz/run.sh BUILD_DIR SECONDS long     a campaign: see below
# The seeds are made afresh from samples/ and tests/fixtures/; what the
# fuzzers find is kept in fuzz/corpus-run/ (not committed) for the next run.
# FUZZ_SHARES overrides the shares, e.g. FUZZ_SHARES="pack:50 events:50";
# FUZZ_FLAGS adds libFuzzer flags, e.g. FUZZ_FLAGS=-seed=1.
#
# A failing input is written to BUILD_DIR/fuzz/artifacts/ (NAME-crash-*,
# NAME-oom-*, NAME-timeout-*, NAME-leak-*; NAME-slow-unit-* for inputs
# slower than 10 seconds, which do not stop the fuzzer); replay it with
#   BUILD_DIR/fuzz/fuzz_NAME -rss_limit_mb=4096 -timeout=30 FILE
#
# A campaign runs each fuzzer in stints of at most 15 minutes, taking the
# fuzzers in turn until each has had its share, so that a campaign cut
# short has fuzzed all four. A stint that ends on a finding is followed by
# the next one, so hours of fuzzing survive a finding; each finding is
# listed with its replay command in BUILD_DIR/fuzz/findings.txt. The
# figures of the run (executions, rate, coverage, corpus) are written to
# BUILD_DIR/fuzz/logs/summary.txt.
set -u
build="$1"
total="$2"
mode="${3:-short}"
root=$(cd "$(dirname "$0")/.." && pwd)
out="$build/fuzz"
seeds="$out/seeds"
artifacts="$out/artifacts"
shares="${FUZZ_SHARES:-parse:35 pack:30 roundtrip:20 events:15}"
stint_max=900
findings_max=5  # a fuzzer that keeps failing is left after this many findings

rm -rf "$seeds"
mkdir -p "$artifacts" "$out/logs"
"$out/kova_fuzz_seeds" "$seeds" "$root/samples" "$root/tests/fixtures" || exit 1
: >"$out/logs/summary.txt"
[ "$mode" = long ] && : >"$out/findings.txt"

# Figures of a stint's log: executions, and the last coverage line's cov and ft.
executions() { awk '/stat::number_of_executed_units/ {print $2}' "$1"; }
coverage() {
  awk '/^#[0-9]+.*cov: / {for (i = 1; i < NF; i++) {if ($i == "cov:") c = $(i + 1); if ($i == "ft:") f = $(i + 1)}}
       END {printf "cov %s ft %s", c ? c : 0, f ? f : 0}' "$1"
}

# One stint of fuzzer $1 for $2 seconds, logged to $3; returns its status.
stint() {
  corpus="$root/fuzz/corpus-run/$1"
  mkdir -p "$corpus"
  # Slow inputs weigh less in the fuzzers' choice (the pack fuzzer's large
  # records take a thousand times the usual input).
  nice -n 19 "$out/fuzz_$1" "$corpus" "$seeds/$1" -dict="$root/fuzz/kova.dict" \
    -max_total_time="$2" -max_len=65536 -timeout=30 -rss_limit_mb=4096 -report_slow_units=10 \
    -entropic_scale_per_exec_time=1 -artifact_prefix="$artifacts/$1-" -print_final_stats=1 \
    ${FUZZ_FLAGS:-} >"$3" 2>&1
}

report() {
  echo "$1" | tee -a "$out/logs/summary.txt"
}

status=0
if [ "$mode" != long ]; then
  for share in $shares; do
    name=${share%%:*}
    seconds=$((total * ${share##*:} / 100))
    [ "$seconds" -ge 1 ] || seconds=1
    log="$out/logs/$name.log"
    stint "$name" "$seconds" "$log"
    rc=$?
    runs=$(executions "$log")
    rate=$(awk '/stat::average_exec_per_sec/ {print $2}' "$log")
    files=$(ls "$root/fuzz/corpus-run/$name" | wc -l)
    if [ "$rc" -eq 0 ]; then
      report "fuzz_$name: ${runs:-0} inputs in ${seconds}s (${rate:-0}/s), $(coverage "$log"), corpus $files, no failure"
    else
      status=1
      echo "fuzz_$name: FAILED (exit $rc); log $log"
      grep -E '^\*\*\* kova|ERROR|SUMMARY|^    #[0-9]' "$log" | head -40
      ls "$artifacts/$name-"* 2>/dev/null
    fi
  done
  exit $status
fi

# The campaign. Per fuzzer: seconds left, executions, seconds run, findings.
left=""
for share in $shares; do
  name=${share%%:*}
  seconds=$((total * ${share##*:} / 100))
  [ "$seconds" -ge 1 ] || seconds=1
  left="$left $name:$seconds:0:0:0"
done
marker="$out/logs/stint-start"
round=0
while :; do
  busy=0
  next=""
  round=$((round + 1))
  for entry in $left; do
    IFS=: read -r name seconds runs spent found <<EOF
$entry
EOF
    if [ "$seconds" -gt 0 ] && [ "$found" -lt "$findings_max" ]; then
      busy=1
      chunk=$((seconds < stint_max ? seconds : stint_max))
      log="$out/logs/$name-$round.log"
      touch "$marker"
      start=$(date +%s)
      stint "$name" "$chunk" "$log"
      rc=$?
      took=$(($(date +%s) - start))
      [ "$took" -ge 1 ] || took=1
      runs=$((runs + $(executions "$log" | tail -n 1 | grep . || echo 0)))
      spent=$((spent + took))
      seconds=$((seconds - (took > chunk ? chunk : took)))
      for f in $(find "$artifacts" -name "$name-*" -newer "$marker" 2>/dev/null); do
        case "$f" in *slow-unit*) kind=slow ;; *) kind=failure ;; esac
        [ "$kind" = failure ] && { found=$((found + 1)); status=1; }
        echo "$kind fuzz_$name: $out/fuzz_$name -rss_limit_mb=4096 -timeout=30 $f (log $log)" \
          >>"$out/findings.txt"
      done
      if [ "$rc" -ne 0 ]; then
        echo "fuzz_$name: stint $round ended on a finding (exit $rc); log $log"
        grep -E '^\*\*\* kova|ERROR|SUMMARY' "$log" | head -5
      fi
      echo "fuzz_$name: stint $round, $(executions "$log") inputs in ${took}s, $(coverage "$log")"
    fi
    next="$next $name:$seconds:$runs:$spent:$found"
  done
  left=$next
  [ "$busy" -eq 1 ] || break
done
rm -f "$marker"

for entry in $left; do
  IFS=: read -r name seconds runs spent found <<EOF
$entry
EOF
  last=$(ls -t "$out/logs/$name-"[0-9]*.log 2>/dev/null | head -n 1)
  files=$(ls "$root/fuzz/corpus-run/$name" | wc -l)
  report "fuzz_$name: $runs inputs in ${spent}s ($((runs / (spent > 0 ? spent : 1)))/s), $(coverage "$last"), corpus $files, $found failing inputs"
done
if [ -s "$out/findings.txt" ]; then
  echo "findings (with the command that replays each): $out/findings.txt"
  cat "$out/findings.txt"
fi
exit $status
