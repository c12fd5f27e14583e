#!/usr/bin/env bash
# other_platform_test.sh FOLDER PLATFORM_LIBRARY CMAKE_OPTION...: builds the library and the program in FOLDER with another
# library of the platform's functions, installs them, and expects that library's texts in what both programs write.
set -euo pipefail
source=$(cd "$(dirname "$0")/../.." && pwd)
folder=$1 original=$2
shift 2
device=$(mktemp -d) # outside the source tree, as the device's library is
trap 'rm -rf "$device" "$folder"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

rm -rf "$folder"
mkdir -p "$folder"
cp "$original" "$device"
cmake -G Ninja -S "$source" -B "$folder/build" -DPONDIFF_PLATFORM_LIBRARY="$device/$(basename "$original")" \
    -DBUILD_TESTING=OFF "$@" >"$folder/log" || fail "$(cat "$folder/log")"
cmake --build "$folder/build" >"$folder/log" || fail "$(cat "$folder/log")"
"$source/tests/exports/runpath_test.sh" "$folder/build" || fail "a RUNPATH is wrong"
cmake --install "$folder/build" --prefix "$folder/first" >"$folder/log"
mv "$folder/first" "$folder/prefix"

cd "$folder"
echo '{}' >running.json
echo '{"system": {"settings": {"ont_sn_format": 2}}}' >settings.json
echo '{"system": {"services": {"source_guard": {"bind": {"0": {"ip": "192.0.2.1", "mac": "AA:BB:CC:DD:EE:0F"}}}}}}' >wanted.json
for program in {build,prefix}/bin/pondiff; do
    # The program takes the words from the library, pondiff's library the addresses.
    words=$("$program" show settings.json)
    [[ $words == *'"ont_sn_format": "word-2"'* ]] || fail "$program does not know the words of $original:"$'\n'"$words"
    status=0
    script=$("$program" diff running.json wanted.json) || status=$?
    [[ $status -eq 1 && $script == *"bind ip 192/0/2/1 mac \"aa-bb-cc-dd-ee-0f\""* ]] || fail "$program does not use $original:"$'\n'"$script"
done
