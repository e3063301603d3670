#!/bin/sh
# The show fixtures, checked by tests/golden_test.cpp in the unit suite and
# written by this script with --update: what `kova show` and `kova layout`
# print for a few shipped samples, tests/fixtures/show/*.txt.
#
#   show_golden.sh TOOL SAMPLES FIXTURES [--update]
# --update writes the fixtures from what the tool prints (review the diff).
set -u
tool=$1
samples=$2
fixtures=$3/show
update=${4:-}
failed=0
checked=0

check() {  # check FIXTURE COMMAND...
  fixture=$fixtures/$1
  shift
  out=$("$@" 2>&1)
  if [ "$update" = "--update" ]; then
    mkdir -p "$fixtures"
    printf '%s\n' "$out" > "$fixture"
  elif ! printf '%s\n' "$out" | cmp -s - "$fixture"; then
    echo "differs from $fixture: $*"
    printf '%s\n' "$out" | diff "$fixture" - | head -n 10
    failed=$((failed + 1))
  fi
  checked=$((checked + 1))
}

check VideoColor.show.txt "$tool" show VideoColor "$samples/VideoColor.json"
check NTP.show.json "$tool" show NTP "$samples/NTP.json" --json
check StorageLowSpace.show.txt "$tool" show StorageLowSpace "$samples/StorageLowSpace.json"
check Encode.layout.txt "$tool" layout Encode
check DefenceArmMode.layout.txt "$tool" layout DefenceArmMode
check Raid.layout.txt "$tool" layout Raid

echo "show golden: $checked checked, $failed failed"
[ "$failed" -eq 0 ]
