#!/bin/sh
# Installs the kova .deb with dpkg, builds and runs the C client against it
# through pkg-config, runs the tool, then removes and purges the package and
# checks that none of its files is left. Changes the system: run by
# `make package-check` only, as root or with sudo.
# Usage: deb_test.sh PACKAGE.deb CONSUMER_DIR
set -eu
deb="$1"
consumer="$2"
SUDO=""; [ "$(id -u)" -ne 0 ] && SUDO=sudo
if dpkg-query -W -f='${Status}' kova 2>/dev/null | grep -q installed; then
  echo "kova is installed already; remove it first"; exit 1
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

$SUDO dpkg -i "$deb" >/dev/null
files=$(dpkg -L kova | while read -r f; do [ -f "$f" ] || [ -L "$f" ] && echo "$f"; done)
cc -o "$work/consumer" "$consumer/consumer.c" $(pkg-config --cflags --libs kova)
echo "installed: $("$work/consumer")"
kova names >/dev/null

$SUDO dpkg -r kova >/dev/null
$SUDO dpkg -P kova >/dev/null
for f in $files; do
  [ ! -e "$f" ] || { echo "left after removal: $f"; exit 1; }
done
if ldconfig -p | grep -q libkova; then echo "libkova still in the linker cache"; exit 1; fi
echo "removed: $(echo "$files" | wc -l) files gone"
