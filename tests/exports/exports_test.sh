#!/usr/bin/env bash
# Compares what the built libraries show to the outside with the lists kept beside this script.
#
#   exports_test.sh symbols LIBRARY PLATFORM    the exported symbols, those listed and no other
#   exports_test.sh needed LIBRARY PLATFORM     the libraries that they load: libc alone, and the platform's
#   exports_test.sh abi LIBRARY PLATFORM        types, sizes and offsets behind the symbols; skipped without abidiff
#   exports_test.sh accept LIBRARY PLATFORM     makes what is built the new lists, for a change that is meant
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
action=$1 library=$2 platform=$3
export LC_ALL=C
skipped=77

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

# Without the places in the source: they are no part of the ABI.
abi() {
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-parameter-names --no-write-default-sizes \
        --type-id-style hash "$1"
}

tell_how_to_accept() {
    [ $? -eq 0 ] || echo "If that is meant: tests/exports/exports_test.sh accept LIBRARY PLATFORM" >&2
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
    trap tell_how_to_accept EXIT
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
    trap tell_how_to_accept EXIT
    abidiff --harmless --suppressions "$here/abi.suppressions" "$here/libpondiff.abi" "$library"
    ;;
accept)
    symbols "$library" >"$here/libpondiff.symbols"
    symbols "$platform" >"$here/libpondiff-platform.symbols"
    abi "$library" >"$here/libpondiff.abi"
    ;;
*)
    sed -n '2,${/^#/!q;s/^# \{0,1\}//p}' "$0" >&2
    exit 2
    ;;
esac
