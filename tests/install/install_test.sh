#!/bin/sh
# Installs the build into a temporary prefix and builds and runs a small C
# client against it twice: through find_package(kova) and through
# pkg-config.
# Usage: install_test.sh BUILD_DIR CONSUMER_DIR CMAKE GENERATOR VERSION
set -eu
build="$1"
consumer="$2"
cmake="$3"
generator="$4"
version="$5"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"

"$cmake" --install "$build" --prefix "$prefix" >/dev/null
libdir=$(cd "$prefix" && ls -d lib*/libkova.so.1 | xargs dirname)
for f in "$libdir/libkova.so" "$libdir/libkova.so.1" include/kova/kova.h \
         include/kova/records/alarm.h bin/kova "$libdir/cmake/kova/kovaConfig.cmake" \
         "$libdir/pkgconfig/kova.pc"; do
  [ -e "$prefix/$f" ] || { echo "not installed: $f"; exit 1; }
done
soname=$(objdump -p "$prefix/$libdir/libkova.so" | awk '/SONAME/ {print $2}')
[ "$soname" = libkova.so.1 ] || { echo "SONAME is '$soname'"; exit 1; }
"$prefix/bin/kova" names >/dev/null

# find_package: the imported target carries the include directory and the
# library's run path.
"$cmake" -S "$consumer" -B "$work/cmake-build" -G "$generator" \
  -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release >/dev/null
"$cmake" --build "$work/cmake-build" >/dev/null
echo "find_package: $("$work/cmake-build/consumer")"

# pkg-config: the flags alone, the run path from the environment.
export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
[ "$(pkg-config --modversion kova)" = "$version" ] ||
  { echo "pkg-config version differs"; exit 1; }
# shellcheck disable=SC2046
cc -o "$work/consumer-pc" "$consumer/consumer.c" $(pkg-config --cflags --libs kova)
echo "pkg-config: $(LD_LIBRARY_PATH="$prefix/$libdir" "$work/consumer-pc")"
