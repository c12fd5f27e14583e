#!/usr/bin/env bash
# Installs what is built into an empty folder, builds the examples against it and compares what they print with what the
# program prints; makes the Debian packages and checks what they hold.
#
#   install_test.sh consumers BUILD_FOLDER
#   install_test.sh packages BUILD_FOLDER
set -euo pipefail
action=$1 build=$(cd "$2" && pwd)
source=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

install() {
    cmake --install "$build" --prefix "$work/first" >"$work/install.log"
    # Nothing may depend on the folder that it was installed to.
    mv "$work/first" "$work/prefix"
    prefix=$work/prefix
    libraries=$(dirname "$(find "$prefix" -name libpondiff.so)")
}

# The script of the example pair, as each of the ways to it prints it.
expect_script() {
    diff -u "$work/script" "$work/$1" || fail "$1 prints another script than pondiff does"
}

consumers() {
    install
    cd "$work"

    "$prefix/bin/pondiff" pack "$source/examples/orig.json" -o orig.bin
    "$prefix/bin/pondiff" pack "$source/examples/cfg.json" -o cfg.bin
    local status=0
    "$prefix/bin/pondiff" diff orig.bin cfg.bin >script || status=$?
    [ $status -eq 1 ] || fail "pondiff diff ended with status $status"
    [ "$(tail -n 1 script)" = commit ] || fail "the script is not closed by commit"

    export PKG_CONFIG_PATH=$libraries/pkgconfig
    pkg-config --validate pondiff
    # The commands are those of the examples themselves.
    local command
    command=$(sed -n 's/^ \*     \(cc .*\|    .*\)/\1/p' "$source/examples/c/print_script.c" |
        sed "s|\\\\$||; s|^cc |${CC:-cc} -Wall -Wextra -Wpedantic -Werror |; s| print_script\.c| '$source/examples/c/print_script.c'|")
    eval "${command//$'\n'/ }" || fail "the command of the example in C fails: $command"
    env -u LD_LIBRARY_PATH ./print_script orig.bin cfg.bin >c.script
    expect_script c.script

    cmake -S "$source/examples/cpp" -B cpp -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_FLAGS="-Wall -Wextra -Wpedantic -Werror" >cpp.log
    cmake --build cpp >>cpp.log
    cpp/print_script orig.bin cfg.bin >cpp.script
    expect_script cpp.script

    command=$(sed -n 's/^ *\(LD_LIBRARY_PATH=.*\)/\1/p' "$source/examples/python/print_script.py")
    cp "$source/examples/python/print_script.py" .
    ln -s orig.bin running.bin
    ln -s cfg.bin wanted.bin
    PATH=$prefix/bin:$PATH eval "$command" >python.script || fail "the command of the example in Python fails: $command"
    expect_script python.script

    [ -f "$prefix/share/zsh/site-functions/_pondiff" ] || fail "zsh does not look where its completion is"

    # The library finds the platform's beside it by itself.
    env -u LD_LIBRARY_PATH python3 -c "import ctypes, sys; ctypes.CDLL(sys.argv[1]).GetDiff_c" "$libraries/libpondiff.so.1"

    # Each header stands on its own, for C++ as for C.
    local header
    for header in $(cd "$prefix/include" && find . -name '*.h'); do
        echo "#include <$header>" | "${CXX:-c++}" -std=c++17 -Wall -Wextra -Wpedantic -Werror -fsyntax-only \
            -I"$prefix/include" -x c++ - || fail "$header does not compile as C++"
    done
    for header in pondiff.h pondiff/platform.h $(cd "$prefix/include" && find gcfg -name '*.h'); do
        echo "#include <$header>" | "${CC:-cc}" -std=c11 -Wall -Wextra -Wpedantic -Werror -fsyntax-only \
            -I"$prefix/include" -x c - || fail "$header does not compile as C"
    done
}

# expect_package PACKAGE DEPENDENCY FILE...: the package is there, depends on what it must, and holds these files.
expect_package() {
    local package dependency=$2 content file
    package=$(find . -maxdepth 1 -name "$1_*.deb")
    [ -f "$package" ] || fail "there is no package $1"
    [ "$(dpkg-deb -f "$package" Package)" = "$1" ] || fail "$package is another package"
    case ", $(dpkg-deb -f "$package" Depends)," in
    *", $dependency"*) ;;
    *) fail "$1 does not depend on $dependency: $(dpkg-deb -f "$package" Depends)" ;;
    esac
    content=$(dpkg-deb --fsys-tarfile "$package" | tar -t)
    shift 2
    for file in "$@"; do
        grep -qxF ".$file" <<<"$content" || fail "$package does not hold $file:"$'\n'"$content"
    done
}

packages() {
    cd "$work"
    cpack --config "$build/CPackConfig.cmake" -D CPACK_PACKAGE_DIRECTORY="$work" >cpack.log 2>&1 ||
        fail "$(cat cpack.log)"
    [ "$(find . -maxdepth 1 -name '*.deb' | wc -l)" -eq 3 ] || fail "not three packages: $(ls)"
    local libraries
    libraries=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
    expect_package libpondiff1 "libc6 (>=" \
        "$libraries/libpondiff.so.1" "$libraries/libpondiff.so.1.0.0" \
        "$libraries/libpondiff-platform.so.1" "$libraries/libpondiff-platform.so.1.0.0"
    expect_package libpondiff-dev "libpondiff1 (= " \
        "$libraries/libpondiff.so" "$libraries/libpondiff-platform.so" \
        "$libraries/pkgconfig/pondiff.pc" "$libraries/cmake/pondiff/pondiff-config.cmake" \
        /usr/include/pondiff.h /usr/include/pondiff/platform.h /usr/include/gcfg/gcfg.h \
        /usr/include/pon/command_file_generator.h /usr/include/pon/diff_builder.h \
        /usr/include/pon/DataToCommandsConvertor.h /usr/include/pon/visibility.h
    expect_package pondiff "libpondiff1 (= " /usr/bin/pondiff /usr/share/man/man1/pondiff.1.gz \
        /usr/share/bash-completion/completions/pondiff /usr/share/zsh/vendor-completions/_pondiff

    local name
    for name in libpondiff1 libpondiff-dev pondiff; do
        dpkg-deb --fsys-tarfile "$name"_*.deb | tar -x -O "./usr/share/doc/$name/copyright" | grep -q Apache-2.0 ||
            fail "$name does not name its licence"
    done
    dpkg-deb --ctrl-tarfile libpondiff1_*.deb | tar -x -O ./symbols >symbols
    grep -qx ' initiate_diff_c@PONDIFF_1 [0-9.]*' symbols || fail "libpondiff1 does not list its symbols"
    for name in libpondiff libpondiff-platform; do
        dpkg-deb --fsys-tarfile libpondiff1_*.deb | tar -x -O ".$libraries/$name.so.1.0.0" >library
        nm -D --defined-only library | awk '{ sub(/@@/, "@", $3); print $3 ~ /@/ ? $3 : $3 "@" ($2 == "A" ? $3 : "Base") }'
    done | LC_ALL=C sort >provided
    sed -n 's/^ \([^ ]*\) .*/\1/p' symbols | LC_ALL=C sort | diff - provided || fail "libpondiff1 lists other symbols than it has"

    # Without dpkg-shlibdeps nobody would know what they depend on.
    mkdir commands
    for name in cmake cpack gzip; do
        ln -s "$(command -v $name)" commands
    done
    ! PATH=$work/commands cpack --config "$build/CPackConfig.cmake" -D CMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF \
        -D CPACK_PACKAGE_DIRECTORY="$work/none" >cpack.log 2>&1 ||
        fail "cpack makes packages without dependencies"
    grep -q 'scripts/packages' cpack.log || fail "cpack does not report what it needs: $(cat cpack.log)"

    # What they hold is enough for the program to run.
    dpkg-deb -x libpondiff1_*.deb system
    dpkg-deb -x pondiff_*.deb system
    [[ $(env -u LD_LIBRARY_PATH system/usr/bin/pondiff --version) == "pondiff "* ]] || fail "the packaged program does not run"
    readelf -S "system$libraries/libpondiff.so.1" >sections
    ! grep -q '\.debug_info' sections || fail "the packaged library is not stripped"
}

case $action in
consumers | packages) "$action" ;;
*) fail "install_test.sh: unknown action '$action'" ;;
esac
