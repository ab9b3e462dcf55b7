#!/usr/bin/env bash
# Measures the library beside its peers on a bare Debian 12. The first argument, if any, is a file for the rows as JSON.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

install_packages "${build_packages[@]}" libsimdjson-dev rapidjson-dev nlohmann-json3-dev libinih-dev
cmake --preset benchmark >/dev/null
cmake --build --preset benchmark | { grep -v '^\[' || true; }

benchmark=build/benchmark/bin/qv_benchmark
$benchmark ${1:+--json "$1"}
$benchmark --growth
$benchmark --programs build/benchmark/bin/qvdb
