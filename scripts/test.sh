#!/usr/bin/env bash
# Builds and tests everything on a bare Debian 12: format, lint, the suite as it ships by g++, the suite under sanitizers
# by clang, the fuzz targets for a moment, the packages, and what others build on those.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

install_packages "${test_packages[@]}"

echo "== release: build"
cmake --preset release -DQV_TESTS=ON >/dev/null
cmake --build --preset release | { grep -v '^\[' || true; }

echo "== format and lint"
scripts/lint.sh build/release

echo "== release: tests"
ctest --preset release

echo "== sanitizers: build"
cmake --preset asan -DQV_TESTS=ON >/dev/null
cmake --build --preset asan | { grep -v '^\[' || true; }

echo "== sanitizers: tests"
ctest --preset asan

echo "== fuzz targets: 20 s each"
scripts/fuzz.sh all 20

echo "== packages"
scripts/debian.sh
scripts/abi.sh

echo "== programs of others"
tests/consumer/run.sh
