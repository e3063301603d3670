#!/bin/sh
# format.sh --write : rewrites every C and C++ file of the tree with the
#                     checked-in .clang-format
# format.sh --check : lists the files that differ from it and fails if any does
set -u
cd "$(dirname "$0")/.."
files=$(git ls-files '*.c' '*.cc' '*.cpp' '*.h' 2>/dev/null ||
        find src include tools tests bench fuzz -name '*.cpp' -o -name '*.h')
case "${1:-}" in
  --write)
    # shellcheck disable=SC2086
    clang-format -i $files ;;
  --check)
    bad=0
    for f in $files; do
      if ! clang-format "$f" | cmp -s - "$f"; then
        echo "not in the checked-in format: $f (make format rewrites it)"
        bad=1
      fi
    done
    exit $bad ;;
  *)
    echo "usage: $0 --write | --check" >&2
    exit 2 ;;
esac
