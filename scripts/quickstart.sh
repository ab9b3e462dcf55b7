#!/usr/bin/env bash
# Builds the libraries and the tool on a bare Debian 12 and converts the parameters of a real sensor.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

install_packages "${build_packages[@]}"
echo "building into build/release (a minute or two)"
cmake --preset release >/dev/null
cmake --build --preset release --target qvdb example_tune | { grep -v '^\[' || true; }

qvdb=build/release/bin/qvdb
document=examples/documents/imx477.json
out=build/quickstart
mkdir -p "$out"

run() {
    echo
    echo "\$ $*"
    "$@"
}

run $qvdb convert $document $out/imx477.bin
run $qvdb convert $document $out/imx477_simulator.json --protocol simulator
run $qvdb convert -q $document $out/imx477.ini
run ls -l $out
echo
echo "\$ head -n 12 $out/imx477.ini"
head -n 12 $out/imx477.ini
run build/release/bin/example_tune $document $out/changed.json
echo
echo "\$ $qvdb info $document"
$qvdb info $document
