#!/bin/sh
# Unpacks Debian's source package PACKAGE into DIR (DIR/PACKAGE-VERSION/),
# the version the archive offers, with Debian's patches applied, through
# `apt-get source`. When apt has no source entries, one is added first for
# the Debian archive the machine already installs from ("deb" -> "deb-src").
# Does nothing when DIR already holds the unpacked package.
set -eu
package="$1"
dir="$2"
if ls -d "$dir/$package"-*/ >/dev/null 2>&1; then exit 0; fi
SUDO=""; [ "$(id -u)" -ne 0 ] && SUDO=sudo

if ! apt-get source --print-uris "$package" >/dev/null 2>&1; then
  if [ -f /etc/apt/sources.list.d/debian.sources ]; then
    sed 's/^Types: deb$/Types: deb-src/' /etc/apt/sources.list.d/debian.sources |
      $SUDO tee /etc/apt/sources.list.d/kova-deb-src.sources >/dev/null
  else
    grep '^deb .*debian' /etc/apt/sources.list | sed 's/^deb /deb-src /' |
      $SUDO tee /etc/apt/sources.list.d/kova-deb-src.list >/dev/null
  fi
  $SUDO apt-get update -qq
fi

mkdir -p "$dir"
cd "$dir"
apt-get source -qq "$package"
ls -d "$package"-*/ >/dev/null
