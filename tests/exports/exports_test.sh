#!/usr/bin/env bash
# Compares the files in a build folder with the lists next to this script.
#
#   exports_test.sh symbols BUILD    the exported symbols of both libraries, those listed and no other
#   exports_test.sh needed BUILD     the libraries that they load: libc alone, and the platform's
#   exports_test.sh abi BUILD        types, sizes and offsets behind the symbols; skipped without abidiff
#   exports_test.sh layout BUILD     the fields of every struct in include/gcfg; the size that README.md gives
#   exports_test.sh accept BUILD     builds, and writes the lists from the result, after an intended change; BUILD is a
#                                    release build by g++. Also updates the size in README.md and the manual page.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$here/../.." && pwd)
action=${1-} build=${2-}
export LC_ALL=C
skipped=77

usage() {
    sed -n '2,${/^#/!q;s/^# \{0,1\}//p}' "$0" >&2
    exit 2
}

# The folder of what is built for one of the folders that are installed.
built_for() {
    echo "$build/$(sed -n "s/^CMAKE_INSTALL_$1:[^=]*=//p" "$build/CMakeCache.txt")"
}

[ -e "$build/CMakeCache.txt" ] || usage
library=$(built_for LIBDIR)/libpondiff.so platform=$(built_for LIBDIR)/libpondiff-platform.so
layout=$build/tests/records.layout

# What a symbol is, its name and version, and the name as C++ writes it.
symbols() {
    nm -D --defined-only "$1" | awk '
        $2 == "A" { next }                       # the version itself
        $2 ~ /^[TW]$/ { print "function", $3 }
        $2 ~ /^[BDR]$/ { print "data", $3 }
        $2 !~ /^[TWBDR]$/ { print "other-" $2, $3 }' |
        while read -r kind name; do
            echo "$kind $name $(c++filt "${name%%@*}")"
        done | sort
}

# Without source locations, which are not part of the ABI; file names are relative to the top of the project, however the
# compiler was started.
abi() {
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-parameter-names --no-write-default-sizes \
        --type-id-style hash "$1" | sed "s|path='[./]*|path='./|"
}

say_how_to_accept() {
    [ $? -eq 0 ] || echo "If that is intended: tests/exports/exports_test.sh accept build/release" >&2
}

# The structs that the headers declare.
structs() {
    sed -nE 's/^(typedef )?struct (.* )?(\w+) \{$/\3/p' "$source"/include/gcfg/*.h | sort
}

# The structs that the whole configuration consists of.
records() {
    sed -n 's/^RECORD(\(.*\), .*/\1/p' "$layout" | sort
}

# The size of the whole configuration, "1,234,567".
bytes_in_all() {
    sed -n 's/^RECORD(GCfg, \(.*\))$/\1/p' "$layout" | sed ':again; s/\([0-9]\)\([0-9]\{3\}\)\(,\|$\)/\1,\2\3/; t again'
}

expect_needed() {
    local found wanted
    found=$(readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\].*/\1/p' | sort | tr '\n' ' ')
    wanted="$2 "
    if [ "$found" != "$wanted" ]; then
        echo "$1 loads: $found" >&2
        echo "instead of: $wanted" >&2
        return 1
    fi
}

case $action in
symbols)
    trap say_how_to_accept EXIT
    diff -u "$here/libpondiff.symbols" <(symbols "$library")
    diff -u "$here/libpondiff-platform.symbols" <(symbols "$platform")
    ;;
needed)
    expect_needed "$library" "libc.so.6 libpondiff-platform.so.1"
    expect_needed "$platform" "libc.so.6"
    ;;
abi)
    if ! command -v abidiff >/dev/null; then
        echo "skipped: abidiff (Debian package abigail-tools) is not installed"
        exit $skipped
    fi
    sections=$(readelf -S "$library")
    if ! grep -q '\.debug_info' <<<"$sections"; then
        echo "$library has no debug information, so its types cannot be compared" >&2
        exit 1
    fi
    trap say_how_to_accept EXIT
    abidiff --harmless --suppressions "$here/abi.suppressions" "$here/libpondiff.abi" "$library"
    ;;
layout)
    diff -u --label include/gcfg --label "$layout" <(structs) <(records) || {
        echo "A struct that is not part of GCfg has no description, so its layout is not checked." >&2
        exit 1
    }
    trap say_how_to_accept EXIT
    diff -u "$here/records.layout" "$layout"
    grep -q " $(bytes_in_all) bytes in all" "$source/README.md" || {
        echo "README.md gives another size than $(bytes_in_all) bytes in all" >&2
        exit 1
    }
    ;;
accept)
    cmake --build "$build"
    symbols "$library" >"$here/libpondiff.symbols"
    symbols "$platform" >"$here/libpondiff-platform.symbols"
    abi "$library" >"$here/libpondiff.abi"
    cp "$layout" "$here/records.layout"
    sed -i "s/[0-9,]* bytes in all/$(bytes_in_all) bytes in all/" "$source/README.md"
    "$source/scripts/man-page" "$(built_for BINDIR)/pondiff" >"$source/docs/pondiff.1"
    ;;
*) usage ;;
esac
