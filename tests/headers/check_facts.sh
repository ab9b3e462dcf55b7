#!/usr/bin/env bash
# The facts are those of the headers, and facts that can't be true don't compile: check_facts.sh <c++> <source folder>
set -euo pipefail
cxx=$1 root=$2
cd "$root"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failures=0

scripts/facts >"$folder/database_facts.inc"
cmp "$folder/database_facts.inc" source/database_facts.inc || {
    echo "The facts differ from the headers. If the headers are right: scripts/facts > source/database_facts.inc"
    failures=1
}

# The source takes the rows that lie beside it.
cp source/database_facts.cpp "$folder"
compile() {
    "$cxx" -std=c++20 -fsyntax-only -I include -I private -I support/common/include -I support/json/include \
        -I support/initialization/include "$folder/database_facts.cpp" 2>"$folder/errors"
}

# refuse WORDS OWNER MEMBER REST: the row of this member, with these words behind its name, must not compile, and the
# compiler must say why.
refuse() {
    sed -E "s|^QV_MEMBER\\($2, ${3%%:*}, .*|QV_MEMBER($2, ${3##*:}, \"meaning\", $4)|" source/database_facts.inc \
        >"$folder/database_facts.inc"
    cmp -s "$folder/database_facts.inc" source/database_facts.inc && { echo "no row of $2.$3"; failures=1; }
    if compile; then
        echo "compiles and must not: $2.$3, $4"
        failures=1
    elif ! grep -q "$1" "$folder/errors"; then
        echo "refused for another reason than \"$1\": $2.$3, $4"
        head -n 5 "$folder/errors"
        failures=1
    fi
}

mode=QvDatabaseSensor_Mode_t
refuse "fpsMost" $mode fpsMax:fpsMost "unit(\"px\")"
refuse "can't hold the range" $mode stitchingMode "range(0, 65536)"
refuse "can't hold the range" $mode stitchingMode "range(-1, kOpen)"
refuse "range is empty" $mode fpsMax "range(2, 1)"
refuse "only a number has a range" QvDatabaseSensor_t driverName "range(0, 1)"
refuse "list of units" $mode fpsMax "unit(\"furlong\")"
refuse "contradict its role" $mode fpsMax "gainAxis()"
refuse "contradict its role" $mode fpsMax "matrix(3, 3)"
refuse "contradict its role" QvDatabaseCalibrationSensorCc_t ccMatrix "matrix(3, 4)"
refuse "contradict its role" $mode fpsMax "countOf(QV_SIBLING($mode, bitWidth))"
refuse "contradict its role" QvDatabaseColorCorrectionMatrix_1_1_t ccMatrix \
    "curveX(QV_SIBLING(QvDatabaseColorCorrectionMatrix_1_1_t, ccOffset))"
refuse "only an integer" QvDatabaseAutoExposure_3_t setPoint "enumeration(EnumerationId::QvDatabaseInputType_t)"
refuse "QvDatabaseInputKind_t" $mode fpsMax "enumeration(EnumerationId::QvDatabaseInputKind_t)"

# The twin of all these compiles.
cp source/database_facts.inc "$folder"
compile || { echo "the facts as they stand don't compile"; head -n 5 "$folder/errors"; failures=1; }
exit "$failures"
