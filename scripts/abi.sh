#!/usr/bin/env bash
# Compares what the libraries export, and the types behind it, with the descriptions in abi/, and fails with what changed.
#
#     scripts/abi.sh          compares
#     scripts/abi.sh renew    writes the descriptions anew, for a change that is meant
#
# The libraries are those that scripts/debian.sh has built, whose debug information tells the types.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

install_packages abigail-tools
mapfile -t folders < <(compgen -G 'build/packages/source/obj-*/lib')
[ ${#folders[@]} -eq 1 ] || { echo "no libraries: run scripts/debian.sh first"; exit 1; }
status=0
for name in qv_common_c qv_json_c qv_initialization qv_database_c; do
    library=${folders[0]}/lib$name.so.0
    options=(--suppressions abi/suppressions.ini --exported-interfaces-only)
    if [ "${1:-}" = renew ]; then
        # Places in sources would make every commit a difference.
        abidw "${options[@]}" --no-show-locs --no-corpus-path --no-comp-dir-path --no-elf-needed --type-id-style hash \
            --out-file "abi/$name.abi" "$library"
    else
        abidiff "${options[@]}" "abi/$name.abi" "$library" || status=1
    fi
done
[ $status -eq 0 ] || echo "If the change is meant: scripts/abi.sh renew, and see docs/compatibility.md"
exit $status
