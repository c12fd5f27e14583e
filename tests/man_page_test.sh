#!/usr/bin/env bash
# Checks that the manual page is what scripts/man-page generates from the program's help, and that man reports no errors.
#   man_page_test.sh PROGRAM
set -euo pipefail
program=$1
source=$(cd "$(dirname "$0")/.." && pwd)

"$source/scripts/man-page" "$program" | diff -u "$source/docs/pondiff.1" - || {
    echo "To renew it: scripts/man-page ${program#"$source"/} > docs/pondiff.1" >&2
    exit 1
}
if command -v groff >/dev/null; then
    complaints=$(groff -man -Tutf8 -ww -z "$source/docs/pondiff.1" 2>&1)
    [[ -z $complaints ]] || {
        echo "$complaints" >&2
        exit 1
    }
fi
