#!/bin/sh
# Runs the command-line tool over every shipped device response: each file
# samples/NAME.json (or samples/NAME.what.json, one of several answers of
# NAME) is parsed as NAME into records, and the records are packed back into
# the text the device expects. Options for the tool come from
# samples/NAME.what.args, else samples/NAME.args. Then every event
# notification in samples/events/ is read by the analyzer event stream and
# by the parse-by-callback reader, and every other device document there by
# the parse-by-callback reader.
set -u
tool="$1"
dir="$2"
total=0
ok=0
built_parse=$("$tool" names | awk '$3 == "built"' | wc -l)
built_pack=$("$tool" names | awk '$5 == "built"' | wc -l)
names=$("$tool" names | awk '{print $1}')
echo "kova demo: $built_parse parse and $built_pack pack translators built"
echo
for f in "$dir"/*.json; do
  [ -e "$f" ] || continue
  stem=$(basename "$f" .json)
  name=$stem
  while ! printf '%s\n' "$names" | grep -qixF -- "$name" && [ "${name%.*}" != "$name" ]; do
    name=${name%.*}
  done
  total=$((total + 1))
  echo "== $name  ($f)"
  extra=""
  if [ -f "$dir/$stem.args" ]; then
    extra=$(cat "$dir/$stem.args")
  elif [ -f "$dir/$name.args" ]; then
    extra=$(cat "$dir/$name.args")
  fi
  # shellcheck disable=SC2086
  out=$("$tool" roundtrip "$name" "$f" $extra 2>&1)
  rc=$?
  echo "$out" | head -n 1
  packed=$(echo "$out" | tail -n +2)
  if [ $rc -eq 0 ]; then
    ok=$((ok + 1))
    len=$(printf '%s' "$packed" | wc -c)
    if [ "$len" -gt 300 ]; then
      printf '   packed (%d bytes): %.300s ...\n' "$len" "$packed"
    else
      printf '   packed: %s\n' "$packed"
    fi
  else
    echo "   FAILED: $packed"
  fi
done
echo
echo "$ok of $total samples parsed and packed back"

events_total=0
events_ok=0
for f in "$dir"/events/*.json; do
  [ -e "$f" ] || continue
  case $(basename "$f") in
    document-*) modes="--by-callback" ;;
    *) modes="- --by-callback" ;;
  esac
  for mode in $modes; do
    events_total=$((events_total + 1))
    [ "$mode" = "-" ] && mode=""
    echo
    echo "== events${mode:+ $mode} ($f)"
    # shellcheck disable=SC2086
    if "$tool" events "$f" $mode; then events_ok=$((events_ok + 1)); else echo "   FAILED"; fi
  done
done
echo
echo "$events_ok of $events_total event documents read"
[ "$ok" -eq "$total" ] && [ "$events_ok" -eq "$events_total" ]
