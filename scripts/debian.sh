#!/usr/bin/env bash
# Builds the Debian packages from the tree as it stands into build/packages, on a bare Debian 12, and looks at them with
# lintian, for which every warning is a failure. The tests run where scripts/test.sh runs them, not here.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

install_packages "${debian_packages[@]}"
out=$PWD/build/packages
version=$(dpkg-parsechangelog --show-field Version)
# What CMake reads from the header and what the changelog says must be one.
header=$(sed -nE 's/^#define QV_DATABASE_VERSION_(MAJOR|MINOR|PATCH) ([0-9]+)$/\2/p' \
    include/qv_database_c/qv_database_version.h | paste -sd.)
[ "$version" = "$header" ] || { echo "debian/changelog says $version, the header $header"; exit 1; }

# Objects that were compiled before are taken from ccache, where that is installed, though debhelper hides the home.
if [ -z "${CCACHE_DIR:-}" ] && command -v ccache >/dev/null; then
    CCACHE_DIR=$(ccache --get-config cache_dir)
    export CCACHE_DIR
fi

rm -rf "$out"
mkdir -p "$out/source"
tar -c --exclude=./build --exclude=./.git . | tar -x -C "$out/source"
log=$out/build.log
(cd "$out/source" && DEB_BUILD_OPTIONS="nocheck parallel=$(nproc)" DEB_BUILD_PROFILES=nocheck \
    dpkg-buildpackage --unsigned-source --unsigned-changes) >"$log" 2>&1 || { tail -n 40 "$log"; exit 1; }
lintian --allow-root --fail-on error,warning "$out"/*.changes
(cd "$out" && ls -- *.deb)
