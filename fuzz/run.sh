#!/bin/sh
# Runs every fuzzer in turn, sharing SECONDS among them:
#   sh fuzz/run.sh BUILD_DIR SECONDS
# The seeds are made afresh from samples/ and tests/fixtures/; what the
# fuzzers find is kept in fuzz/corpus-run/ (not committed) for the next run.
# A failing input is written to BUILD_DIR/fuzz/artifacts/; replay it with
#   BUILD_DIR/fuzz/fuzz_NAME FILE
set -u
build="$1"
total="$2"
root=$(cd "$(dirname "$0")/.." && pwd)
out="$build/fuzz"
seeds="$out/seeds"
rm -rf "$seeds"
mkdir -p "$out/artifacts" "$out/logs"
"$out/kova_fuzz_seeds" "$seeds" "$root/samples" "$root/tests/fixtures" || exit 1

status=0
for share in parse:35 pack:30 roundtrip:20 events:15; do
  name=${share%%:*}
  seconds=$((total * ${share##*:} / 100))
  [ "$seconds" -ge 1 ] || seconds=1
  corpus="$root/fuzz/corpus-run/$name"
  log="$out/logs/$name.log"
  mkdir -p "$corpus"
  "$out/fuzz_$name" "$corpus" "$seeds/$name" -dict="$root/fuzz/kova.dict" \
    -max_total_time="$seconds" -max_len=65536 -timeout=30 -rss_limit_mb=4096 \
    -artifact_prefix="$out/artifacts/$name-" -print_final_stats=1 >"$log" 2>&1
  rc=$?
  runs=$(awk '/stat::number_of_executed_units/ {print $2}' "$log")
  rate=$(awk '/stat::average_exec_per_sec/ {print $2}' "$log")
  files=$(ls "$corpus" | wc -l)
  if [ "$rc" -eq 0 ]; then
    echo "fuzz_$name: ${runs:-0} inputs in ${seconds}s (${rate:-0}/s), corpus $files, no failure"
  else
    status=1
    echo "fuzz_$name: FAILED (exit $rc); log $log"
    grep -E '^\*\*\* kova|ERROR|SUMMARY|^    #[0-9]' "$log" | head -40
    ls "$out/artifacts/$name-"* 2>/dev/null
  fi
done
exit $status
