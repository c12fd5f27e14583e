#!/usr/bin/env bash
# commands_test.sh: what ./run and ./test write, with stand-ins for all that takes long: nothing is installed or built.
set -euo pipefail
source=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() {
    echo "$*" >&2
    head -n 20 out err >&2
    exit 1
}

# A tree without git's folder and a machine that has these commands and no other. Several stand-ins do nothing.
mkdir -p tree/{scripts,examples} machine
cp "$source"/{run,test} tree
cp "$source/scripts/install-packages" tree/scripts
echo 'exit 0' >tree/scripts/lint
chmod +x tree/scripts/lint
(cd tree && mkdir bench fuzz include platform pon tests tool && echo 'int i;' >pon/a.cpp)
for name in awk bash cat chmod dirname env find grep head mkdir mktemp nproc readlink rm sed tail tr xargs; do
    ln -s "$(command -v $name)" machine
done
stand_in() {
    printf '#!/bin/bash\n%s\n' "$2" >"machine/$1"
    chmod +x "machine/$1"
}
for name in ninja gcc g++ clang clang++ readelf pkg-config python3 valgrind; do
    stand_in $name ''
done
stand_in clang-format 'echo "clang-format version 14.0.6"; printf "%s\n" "$@" >>'"$work/formatted"
stand_in clang-tidy 'echo "LLVM version 19.1.7"'
stand_in cppcheck 'echo "Cppcheck 2.17"'

# expect STATUS COMMAND...: ends with that status.
expect() {
    local wanted=$1 status=0
    shift
    PATH=$work/machine "$@" >out 2>err </dev/null || status=$?
    [ $status -eq "$wanted" ] || fail "$* ends with status $status"
}

# Somebody who may install nothing gets the command for it, and no more.
stand_in dpkg-query 'case $* in *cmake) printf installed ;; *) exit 1 ;; esac'
stand_in id 'echo 1000'
expect 2 tree/run
[[ $(cat err) == 'Debian packages are missing; as root: apt-get install --no-install-recommends g++ '*libfmt-dev && ! -s out ]] ||
    fail "./run without packages"
[[ $(wc -l <err) -eq 1 && $(cat err) != *cmake* ]] || fail "./run without packages: more than what is missing"

# Where everything is there, nothing is asked for. The reason of a failure is one line.
stand_in dpkg-query 'case $* in *Depends*) echo "clang-19 (>= 19~)" ;; *) printf installed ;; esac'
stand_in cmake 'printf "%s\n" "CMake Error at CMakeLists.txt:6 (message):" "  Rename the" "  folder." "" "-- Configuring incomplete"; exit 1'
expect 2 tree/run
[[ $(tail -n 1 err) == 'run: configuring failed: Rename the folder. (all of it is in '*'/build/run.log)' ]] || fail "a failing configuration"
[ "$(wc -l <err)" -eq 2 ] || fail "a failing configuration: more than two lines"

# Each step is a line; compiling goes on in tenths. Afterwards nothing is said, and a link to it is as good.
stand_in cmake '
case $1 in
--build)
    [ ! -e "$2/bin/pondiff" ] || { echo "ninja: no work to do."; exit; }
    for i in {1..40}; do echo "[$i/40] Building"; done
    mkdir -p "$2/bin" && printf "#!/bin/bash\necho pondiff \$1\nexit 1\n" >"$2/bin/pondiff" && chmod +x "$2/bin/pondiff" ;;
-G) # Ninja -S SOURCE -B BUILD
    mkdir -p "$6" && : >"$6/build.ninja" && echo "CMAKE_HOME_DIRECTORY:INTERNAL=$4" >"$6/CMakeCache.txt" ;;
esac'
expect 0 tree/run
[ "$(cat out)" = 'pondiff diff' ] || fail "./run does not run the program"
[[ $(head -n 1 err) == Configuring* && $(grep -c '^Compiling: [0-9]* of 40$' err) -eq 10 && $(wc -l <err) -eq 11 ]] ||
    fail "./run does not report its steps"
ln -s "$work/tree/run" link
expect 1 ./link pack
[[ $(cat out) == 'pondiff pack' && ! -s err ]] || fail "./run through a link"

# ./test adds up what ctest ran, and that is its last line.
stand_in cmake ''
stand_in ctest 'mkdir -p "$2"; printf "%s\n" " 1/3 Test #1: a b ...   Passed    0.01 sec" " 2/3 Test #3: c .....***Skipped   0.00 sec" \
    "10/10 Test  #2: Passed.x ......   Passed    0.01 sec" "100% tests passed, 0 tests failed out of 3"'
mkdir -p tree/build/{release,sanitize-gcc,sanitize-clang}
ln -s "$work/tree/test" test-link
expect 0 ./test-link
[ "$(tail -n 1 out)" = '6 passed, 0 failed, 3 skipped' ] || fail "./test does not add up"
grep -q '^skipped: .* clang-tidy version 14' out || fail "./test does not say that it leaves lint out"
grep -qxF pon/a.cpp formatted || fail "./test does not look at the format"

stand_in ctest 'printf "%s\n" "1/2 Test #1: a ...   Passed    0.01 sec" "2/2 Test #2: b ...***Failed  0.01 sec"; exit 8'
expect 1 tree/test
[ "$(tail -n 1 out)" = '1 passed, 1 failed, 0 skipped' ] || fail "./test does not add up what failed"
