#!/bin/sh
# Checks that the shared library exports exactly the four entry points,
# unmangled, and carries a versioned SONAME.
set -eu
lib="$1"
got=$(nm -D --defined-only "$lib" | awk '$2 ~ /^[TtWwDdBbRrVvi]$/ {print $3}' | sort)
want=$(printf '%s\n' KOVA_PacketData KOVA_ParseAnalyzerEventData KOVA_ParseData KOVA_ParseDataByCallback | sort)
if [ "$got" != "$want" ]; then
  echo "exported symbols differ"; echo "got:"; echo "$got"; echo "want:"; echo "$want"; exit 1
fi
soname=$(objdump -p "$lib" | awk '/SONAME/ {print $2}')
case "$soname" in
  libkova.so.[0-9]*) echo "exported: 4 symbols, SONAME $soname" ;;
  *) echo "unexpected SONAME '$soname'"; exit 1 ;;
esac
