#!/usr/bin/env bash
# The database goes other ways where its siblings offer more than their contracts ask for. Here it works with builds of
# them that offer just that, and everything comes out the same: files of all forms, statuses and traces.
#     contract_siblings_test.sh <qvdb> <save_random> <folder of such libraries> <source folder> <databases>
set -euo pipefail
qvdb=$1 saveRandom=$2 plain=$3 source=$4 databases=$5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Else the test says nothing: the libraries lack what is beyond the contracts, and the database comes to use them.
for symbol in QvJsonValue_reserve QvJsonCompact_ QvInitializationText_ QvCommonBuffer_saveParts; do
    if nm -D --defined-only "$plain"/*.so.0 | grep " $symbol" >/dev/null; then
        echo "the libraries in $plain have $symbol"
        exit 1
    fi
done
LD_LIBRARY_PATH=$plain ldd "$qvdb" | grep "$plain/libqv_json_c.so.0" >/dev/null

useAll() {
    local folder=$1
    mkdir "$folder"
    cd "$folder"
    "$saveRandom" . "$databases" 2>/dev/null
    for file in *.json "$source"/examples/documents/*.json; do
        local name
        name=$(basename "$file" .json)
        "$qvdb" convert "$file" "$name.bin" -v &>"$name.bin.log"
        "$qvdb" convert "$file" "$name.ini" -v &>"$name.ini.log"
        "$qvdb" convert "$file" "$name.again.json" -v &>"$name.json.log"
        "$qvdb" convert "$file" "$name.simulator.json" --protocol simulator -v &>"$name.simulator.log"
    done
    # Lists of other kinds and depths than the records have.
    for list in '[1, 2.5, true, "x", null]' '[[1, 2], [3], 4]' '[-1, 70000, 1e9]' '[1, 0, 3]' '[1e30, -0.5]' '[[[1]]]' \
        '[18446744073709551615, -5000000000]' '[[[1.5, 2], [3]], [[4, 5]]]' '[{"gains": [1, 2]}, 7]' '{"a": 1}' '[]'; do
        echo "{\"tuning\": {
            \"A3DNR_2_1\": {\"tables\": [{\"gains\": @, \"motionInv\": @, \"temporalCurve\": @, \"rangeT\": @}]},
            \"LSC_4\": {\"matrix\": @, \"xSize\": @, \"enable\": @},
            \"RGBIR_1_1\": {\"ccMatrix\": @, \"irThr\": @, \"dpccTh\": @}, \"AWB_3\": {\"roiWindow\": @},
            \"GC_2\": {\"curve\": @}}}" | sed "s/@/$list/g" >odd.json
        "$qvdb" convert odd.json odd.bin -v >>odd.bin.log 2>&1 || echo "status $?" >>odd.bin.log
        md5sum odd.bin >>odd.sums
    done
    sed -i -E 's/"exportDate": "[^"]*"//' ./*.json
    sed -i -E 's/^([a-z]+: [^:]*):[0-9]+/\1/' ./*.log # other ways are other lines
    cd - >/dev/null
}

useAll "$work/ours"
LD_LIBRARY_PATH=$plain useAll "$work/plain"
[[ $(find "$work/ours" -name '*.bin' | wc -l) -gt 2 ]]
diff -r "$work/ours" "$work/plain"
