#!/usr/bin/env bash
# That the manual page is the one which scripts/man-page makes of the program's help, and that a reader of manual pages
# finds nothing to complain about.
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
