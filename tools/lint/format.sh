#!/usr/bin/env bash
# Fails on a source that clang-format would change. `format.sh --fix` changes it.
set -euo pipefail
cd "$(dirname "$0")/../.."
mapfile -t sources < <(git ls-files --cached --others --exclude-standard '*.h' '*.cpp')
[ "${#sources[@]}" -gt 0 ] || { echo "git lists no sources here" >&2; exit 1; }
if [ "${1:-}" = --fix ]; then
    clang-format-14 -i "${sources[@]}"
else
    clang-format-14 --dry-run -Werror "${sources[@]}"
fi
