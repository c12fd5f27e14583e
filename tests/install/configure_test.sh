#!/usr/bin/env bash
# configure_test.sh CMAKE_OPTION...: how the project configures where something is missing or in the way.
set -euo pipefail
source=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
options=("$@")

fail() {
    echo "$*" >&2
    cat log >&2
    exit 1
}

# expect STATUS TEXT CMAKE_ARGUMENT...: CMake ends so, and writes this, in lines of any length.
expect() {
    local wanted=$1 text=$2 status=0
    shift 2
    cmake "${options[@]}" "$@" >log 2>&1 || status=$?
    [ $status -eq "$wanted" ] || fail "cmake $*: status $status"
    [[ $(tr -s ' \n' ' ' <log) == *"$text"* ]] || fail "cmake $*: does not write '$text'"
}

# Without what the tests are written with, the library and the program can be built.
without=(-DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON -DCMAKE_DISABLE_FIND_PACKAGE_rapidcheck=ON)
expect 0 'tests are left out; they need the Debian packages libgtest-dev libgmock-dev librapidcheck-dev' \
    -S "$source" -B without "${without[@]}"
cmake --build without --target help >log
grep -q 'pondiff' log || fail "there is nothing to build"
expect 1 'install the Debian packages libgtest-dev libgmock-dev librapidcheck-dev' \
    -S "$source" -B without "${without[@]}" -DPONDIFF_REQUIRE_TESTS=ON

# A folder that CMake cannot build in is refused before anything else.
for name in 'a"b' 'a;b' 'a[b' 'a]b' $'a\nb'; do
    expect 1 'a quotation mark, semicolon, bracket, backslash or line feed is in its name. Rename the folder.' \
        -S "$source" -B "$name"
    [ "$(grep -c '^CMake Error' log)" -eq 1 ] || fail "$name: more than one error"
done

expect 1 'Give that, or the name of a library that the linker finds.' -S "$source" -B other -DPONDIFF_PLATFORM_LIBRARY=./no.so
expect 1 'Give a folder under the prefix, such as lib64.' -S "$source" -B other -DCMAKE_INSTALL_LIBDIR=/usr/lib -UPONDIFF_PLATFORM_LIBRARY
