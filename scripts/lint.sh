#!/usr/bin/env bash
# Checks the format of all sources and runs clang-tidy over those that a build folder compiles.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}

find include private source support tools examples tests benchmarks fuzz \( -name '*.h' -o -name '*.hpp' -o -name '*.cpp' -o -name '*.c' \) -print0 |
    xargs -0 clang-format --dry-run --Werror
echo "format: clean"

log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! run-clang-tidy -quiet -p "$build" -j "$(nproc)" >"$log" 2>&1; then
    grep -E 'error:|warning:' -A 4 "$log" | head -n 100
    exit 1
fi
echo "lint: clean"
