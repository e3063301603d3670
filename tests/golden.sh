#!/bin/sh
# The golden fixtures, checked by tests/golden_test.cpp in the unit suite and
# written by this script with --update: every shipped device answer
# samples/NAME[.what].json
# (with its .args) is parsed with the kova tool and packed back, and the
# packed text must be exactly tests/fixtures/NAME[.what].packed.txt; every
# event document samples/events/FILE.json must read to exactly
# tests/fixtures/events/FILE.txt (both readers, then every record field by
# field); tests/fixtures/records.txt keeps the checksum of what
# "kova show NAME FILE --all" prints for each answer (every byte of the
# records it parses to). A new configuration is covered by its sample and its
# packed text.
#
#   golden.sh TOOL SAMPLES FIXTURES [--update]
# --update writes the fixtures from what the tool prints (review the diff).
set -u
LC_ALL=C  # samples in byte order, as the unit test lists them
export LC_ALL
tool=$1
samples=$2
fixtures=$3
update=${4:-}
failed=0
checked=0
records=""
names=$("$tool" names | awk '{print $1}')

compare() {  # compare EXPECTED-FILE ACTUAL-TEXT LABEL
  if [ "$update" = "--update" ]; then
    printf '%s\n' "$2" > "$1"
  elif [ ! -f "$1" ]; then
    echo "missing fixture $1 for $3"
    failed=$((failed + 1))
  elif ! printf '%s\n' "$2" | cmp -s - "$1"; then
    echo "differs from $1: $3"
    printf '%s\n' "$2" | diff "$1" - | head -n 5
    failed=$((failed + 1))
  fi
  checked=$((checked + 1))
}

for f in "$samples"/*.json; do
  stem=$(basename "$f" .json)
  name=$stem
  while ! printf '%s\n' "$names" | grep -qixF -- "$name" && [ "${name%.*}" != "$name" ]; do
    name=${name%.*}
  done
  extra=""
  if [ -f "$samples/$stem.args" ]; then
    extra=$(cat "$samples/$stem.args")
  elif [ -f "$samples/$name.args" ]; then
    extra=$(cat "$samples/$name.args")
  fi
  # shellcheck disable=SC2086
  out=$("$tool" roundtrip "$name" "$f" $extra 2>&1) || { echo "roundtrip of $f failed: $out"; failed=$((failed + 1)); continue; }
  compare "$fixtures/$stem.packed.txt" "$(printf '%s\n' "$out" | tail -n +2)" "$f"
  # shellcheck disable=SC2086
  shown=$("$tool" show "$name" "$f" --all $extra 2>&1)
  records="$records$stem $(printf '%s\n' "$shown" | cksum)
"
done
compare "$fixtures/records.txt" "$(printf '%s' "$records")" "the records of the samples (kova show NAME FILE --all)"

mkdir -p "$fixtures/events"
for f in "$samples"/events/*.json; do
  [ -e "$f" ] || continue
  stem=$(basename "$f" .json)
  out=$( { "$tool" events "$f"; echo "-- by callback"; "$tool" events "$f" --by-callback;
          echo "-- shown"; "$tool" events "$f" --show; } 2>&1)
  compare "$fixtures/events/$stem.txt" "$out" "$f"
done

echo "golden: $checked checked, $failed failed"
[ "$failed" -eq 0 ]
