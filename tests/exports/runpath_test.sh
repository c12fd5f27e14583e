#!/usr/bin/env bash
# runpath_test.sh BUILD_FOLDER: fails unless every program and library that was built looks for libraries in folders that
# are named from the root or from its own place. An empty or a relative folder is one below the current folder, where
# anybody may have put a library.
set -euo pipefail

status=0 seen=0
while IFS= read -r -d '' file; do
    dynamic=$(readelf --wide --dynamic "$file" 2>/dev/null) || continue # a script
    seen=$((seen + 1))
    while IFS= read -r path; do
        [[ :$path: =~ ^(:(/|\$ORIGIN)[^:]*)+:$ ]] && continue
        echo "$file: its RUNPATH is '$path'"
        status=1
    done < <(sed -nE 's/.*\((RUNPATH|RPATH)\).*\[(.*)\].*/\2/p' <<<"$dynamic")
done < <(find "$1" -type f \( -perm -u+x -o -name '*.so*' \) ! -path '*/CMakeFiles/*' -print0)
[ "$seen" -ge 2 ] || {
    echo "$1: only $seen programs and libraries"
    status=1
}
exit $status
