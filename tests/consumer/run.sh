#!/usr/bin/env bash
# What a stranger does with the packages of scripts/debian.sh: installs them, below a scratch folder, and builds programs
# of all kinds on them with warnings as errors. The build has no part in this but for the package in the build folder,
# which a project may use as well.
set -euo pipefail
cd "$(dirname "$0")/../.."
source=$PWD
source scripts/packages.sh
install_packages "${test_packages[@]}" dpkg-dev fakeroot meson pkgconf
packages=$source/build/packages
consumer=$source/tests/consumer
document=$source/examples/documents/imx477.json
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
triplet=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
version=$(dpkg-parsechangelog --show-field Version)

# install <root> <package file>...: as apt would, with what they depend on, but with nothing run and only ours unpacked.
install() {
    local root=$1 needed
    shift
    mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers} "$root/tmp"
    needed=(libc6 libgcc-s1 libstdc++6 gcc-12-base libcrypt1 libpng16-16 zlib1g)
    dpkg-query -s "${needed[@]}" >"$root/var/lib/dpkg/status"
    for name in "${needed[@]}"; do
        : >"$root/var/lib/dpkg/info/$name.list"
        : >"$root/var/lib/dpkg/info/$name:$(dpkg --print-architecture).list"
    done
    fakeroot dpkg --root="$root" --force-not-root --log=/dev/null -i "$@" >"$work/dpkg.log" 2>&1 ||
        { cat "$work/dpkg.log"; exit 1; }
}

# expect <what is printed> <command...>
expect() {
    local printed wanted=$1
    shift
    printed=$("$@") || { echo "fails: $*"; exit 1; }
    [ "$printed" = "$wanted" ] || { diff <(echo "$wanted") <(echo "$printed") || true; echo "by: $*"; exit 1; }
}

root=$work/root
mapfile -t debs < <(printf '%s\n' "$packages"/*.deb | grep -v /python3-)
install "$root" "${debs[@]}"
dpkg -x "$packages"/python3-*.deb "$root" # its scripts compile modules, for which there is no Python in that root
lib=$root/usr/lib/$triplet
export PKG_CONFIG_LIBDIR=$lib/pkgconfig PKG_CONFIG_SYSROOT_DIR=$root
export CPATH=$root/usr/include LIBRARY_PATH=$lib LD_LIBRARY_PATH=$lib
unset CMAKE_PREFIX_PATH

echo "-- what is installed"
for file in "$lib"/*.so "$root/usr/bin/qvdb"; do
    readelf -d "$file" >"$work/log"
    ! grep -E 'R(UN)?PATH' "$work/log" || { echo "$file has a run path"; exit 1; }
    grep -q BIND_NOW "$work/log" || { echo "$file is not hardened"; exit 1; }
done
for name in qv_database_c qv_json_c qv_initialization qv_common_c; do
    expect "$version" pkg-config --modversion $name
    expect "-l$name" sh -c "pkg-config --libs-only-l $name | sed 's/ *$//'"
done
expect "" find "$lib" -name '*.so.0' -xtype l
"$root/usr/bin/qvdb" info "$document" >/dev/null
expect "40.8 (20, 20)" env PYTHONPATH="$root/usr/lib/python3/dist-packages" PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 -c "
import qv_database as qv
with qv.Database('$document') as db:
    print(db['AE_3'].setPoint, db['A2DNR_5_2'].tables['sigma'].shape)"
(cd "$root/usr/share/doc/qv-database-doc" && ls README.md docs/formats.md fields.html reference/index.html \
    examples/tune.c examples/documents/imx477.json >/dev/null)

for cc in gcc clang; do
    cxx=${cc/gcc/g++}
    cxx=${cxx/clang/clang++}
    echo "-- $cc: a C program by pkg-config"
    mkdir -p "$work/$cc"
    # shellcheck disable=SC2046
    $cc -std=c11 -Wall -Wextra -Wpedantic -Wconversion -Werror -o "$work/$cc/tune" "$source/examples/tune.c" \
        $(pkg-config --cflags --libs qv_database_c qv_common_c)
    expect "ISP QVP1200L_V2407, document version 6.8.25.2
2DNR strength 96, sigma 3.900
saved with strength 48 as $work/$cc/set.bin" "$work/$cc/tune" "$document" "$work/$cc/set.bin"

    echo "-- $cxx: a C++ program by find_package"
    for prefix in "$root/usr" "$source/build/release"; do
        build=$work/$cc/package_$(basename "$prefix")
        env -u CPATH -u LIBRARY_PATH -u LD_LIBRARY_PATH cmake -S "$consumer/package" -B "$build" \
            -DCMAKE_CXX_COMPILER=$cxx -DCMAKE_PREFIX_PATH="$prefix" -DWANTED_VERSION=0.1 \
            -DEXAMPLES="$source/examples" >"$work/log" 2>&1 &&
            cmake --build "$build" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
        expect "2 schedules
gain    1.000  strength  40" sh -c '"$0" "$1" | head -n 2' "$build/schedule" "$work/$cc/set.bin"
        expect '{
  "answer": 42
}' "$build/print_json"
    done

    echo "-- $cc: a C program by add_subdirectory"
    env -u CPATH -u LIBRARY_PATH -u LD_LIBRARY_PATH cmake -S "$consumer/subdirectory" -B "$work/$cc/subdirectory" \
        -DCMAKE_C_COMPILER=$cc -DCMAKE_CXX_COMPILER=$cxx -DQV_SOURCE="$source" >"$work/log" 2>&1 &&
        cmake --build "$work/$cc/subdirectory" -j"$(nproc)" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
    expect "C_MODEL 30
DVC 3
IPT 29
OPT 78
SS 4
TM 23" "$work/$cc/subdirectory/count_keys" "$source/examples/documents/imx477.ini"
done

echo "-- the examples as a project, and what docs/using.md shows"
mkdir "$work/shown"
cp -r "$root/usr/share/doc/qv-database-doc/examples/." "$work/shown"
(cd "$work/shown" && CMAKE_PREFIX_PATH=$root/usr bash "$consumer/run_document.sh" "$source/docs/using.md")

echo "-- what the README shows"
(cd "$source" && eval "$(grep '^cc ' README.md | sed "s#cc #cc -o $work/tune #")")
"$work/tune" "$document" "$work/changed.json" >/dev/null 2>&1
{
    printf '#include <qv_database_c/qv_database.h>\n#include <qv_database_c/database_records.h>\nint main(void)\n{\n'
    awk '/^```c$/ { inside = 1; next } /^```$/ && inside { exit } inside' README.md
    printf 'return status;\n}\n'
} | cc -x c -std=c11 -fsyntax-only -Wall -Wextra -Wpedantic -Werror -
{
    printf '#include <qv_database_c/qv_database.hpp>\nint main()\n{\n'
    awk '/^```cpp$/ { inside = 1; next } /^```$/ && inside { exit } inside' README.md
    printf '}\n'
} | c++ -x c++ -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Werror -

echo "-- another build in the place of a sibling"
site=$work/site
mkdir -p "$site/DEBIAN" "$site/usr/lib/$triplet"
cp "$lib/libqv_json_c.so.0" "$site/usr/lib/$triplet/"
cat >"$site/DEBIAN/control" <<END
Package: site-json
Version: 7
Architecture: $(dpkg --print-architecture)
Maintainer: a site
Provides: libqv-json-c0 (= $version)
Conflicts: libqv-json-c0
Replaces: libqv-json-c0
Description: stands in for the JSON library
END
dpkg-deb --build --root-owner-group "$site" "$work/site.deb" >/dev/null
mapfile -t others < <(printf '%s\n' "${debs[@]}" | grep -v 'libqv-json-c0')
install "$work/root2" "$work/site.deb" "${others[@]}"
(install "$work/root3" "${others[@]}") >/dev/null && { echo "installs without its dependencies"; exit 1; }
LD_LIBRARY_PATH=$work/root2/usr/lib/$triplet "$work/root2/usr/bin/qvdb" info "$document" >/dev/null
echo "-- done"
