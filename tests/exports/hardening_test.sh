#!/usr/bin/env bash
# hardening_test.sh LIBRARY PROGRAM OTHER...: fails unless each file is linked as a hardened one is: relocations are
# read-only before anything runs, no page is both writable and executable, nothing is bound to an address. The library
# and the program guard their frames.
set -euo pipefail

status=0
for file in "$@"; do
    headers=$(readelf --wide --file-header --program-headers --dynamic "$file")
    has() { grep -qE "$1" <<<"$headers"; }
    lacks() {
        echo "$file: $1"
        status=1
    }
    has 'Type: +DYN ' || lacks 'it is loaded at a fixed address'
    has 'GNU_RELRO ' || lacks 'nothing becomes read-only after relocation'
    has '\(FLAGS_1\) .*NOW' || lacks 'functions are bound when they are first called'
    has 'GNU_STACK .* RW +0x' || lacks 'the stack may be executable'
    ! has 'LOAD .* RWE ' || lacks 'a segment is writable and executable'
    ! has 'TEXTREL' || lacks 'the code itself is relocated'
done
for file in "${@:1:2}"; do
    symbols=$(readelf --wide --dyn-syms "$file")
    if [[ $symbols != *' __stack_chk_fail'* ]]; then
        echo "$file: no frame is guarded"
        status=1
    fi
done
exit $status
