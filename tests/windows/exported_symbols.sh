#!/bin/sh
# exported_symbols.sh DLL OBJDUMP [CALLER.exe]
# Checks that kova.dll exports exactly the four entry points under their
# plain names, and imports nothing but the system's DLLs (the C++ runtime,
# libgcc, winpthreads and jsoncpp are linked in). With CALLER, a program
# linked against kova.lib: it must import the same four plain names from
# kova.dll, whatever names (decorated on 32-bit) its calls were linked by.
set -eu
dll="$1"
objdump="$2"
caller="${3:-}"
want=$(printf '%s\n' KOVA_PacketData KOVA_ParseAnalyzerEventData KOVA_ParseData KOVA_ParseDataByCallback | sort)
dump=$("$objdump" -p "$dll")
got=$(printf '%s\n' "$dump" | awk '/\[Ordinal\/Name Pointer\] Table/ {on = 1; next}
  on && /^\t\[ *[0-9]+\]/ {print $NF; next} on {on = 0}' | sort)
if [ "$got" != "$want" ]; then
  echo "exported names differ"; echo "got:"; echo "$got"; echo "want:"; echo "$want"; exit 1
fi
imports=$(printf '%s\n' "$dump" | awk '/DLL Name:/ {print $3}' | sort -u)
for name in $imports; do
  case "$(printf '%s' "$name" | tr 'A-Z' 'a-z')" in
    kernel32.dll | msvcrt.dll | user32.dll | advapi32.dll | api-ms-win-*) ;;
    *) echo "kova.dll imports $name"; exit 1 ;;
  esac
done
echo "exported: 4 names; imports:" $imports
[ -n "$caller" ] || exit 0

# The caller's import table: the names listed under "DLL Name: kova.dll",
# one per line after the "vma:" header, up to the blank line.
got=$("$objdump" -p "$caller" | awk '/DLL Name:/ {on = (tolower($3) == "kova.dll"); next}
  on && /^\t[0-9a-f]+\t/ {print $NF; next} on && /^$/ {on = 0}' | sort)
if [ "$got" != "$want" ]; then
  echo "$caller imports from kova.dll:"; echo "$got"; echo "want:"; echo "$want"; exit 1
fi
echo "$(basename "$caller") imports the 4 plain names from kova.dll"
