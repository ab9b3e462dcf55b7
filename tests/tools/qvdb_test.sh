#!/bin/sh
# Calls qvdb and the two examples: qvdb_test.sh QVDB EXAMPLE_TUNE EXAMPLE_SCHEDULE SOURCE_FOLDER
set -u
qvdb=$1 tune=$2 schedule=$3 documents=$4/examples/documents
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
cp "$documents"/imx477.* . || exit 1
failures=0

fail() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}

# expect STATUS OUT ERROR COMMAND...: what the command must answer, the two outputs as patterns.
expect() {
    status=$1 out=$2 error=$3
    shift 3
    "$@" >out 2>error
    found=$?
    [ $found -eq "$status" ] || fail "$*: status $found instead of $status"
    # shellcheck disable=SC2254
    case $(cat out) in $out) ;; *) fail "$*: standard output: $(cat out)" ;; esac
    # shellcheck disable=SC2254
    case $(cat error) in $error) ;; *) fail "$*: standard error: $(cat error)" ;; esac
}

# refuse STATUS-TEXT COMMAND...: one line on standard error, nothing else, exit status 1.
refuse() {
    text=$1
    shift
    expect 1 "" "qvdb: $text" "$@"
    [ "$(wc -l <error)" -eq 1 ] || fail "$*: more than one line: $(cat error)"
}

newline='
'
expect 0 "loaded imx477.json${newline}saved x.ini" "" "$qvdb" convert imx477.json x.ini
cmp x.ini imx477.ini || fail "x.ini differs from the sample"
expect 0 "loaded x.ini${newline}loaded imx477.json${newline}saved x.bin" "" "$qvdb" convert x.ini imx477.json x.bin
[ "$(wc -c <x.bin)" -eq 564730 ] || fail "an image has 564730 bytes"
expect 0 "*saved simulator.json" "" "$qvdb" convert x.bin simulator.json --protocol simulator
[ "$(grep -c '"classname": ' simulator.json)/$(grep -c '"class": ' simulator.json)" = 19/23 ] || fail "class objects"
expect 0 "*saved back.json" "" "$qvdb" convert simulator.json --protocol standard back.json
grep -q '"tuning": {' back.json || fail "back.json is no tuning document"

expect 0 "*header/resolution\[0\]/framerate: 3*awb/illumination: 7*cc: 12*lsc: 8*MISC  *83  changed *" "" \
    "$qvdb" info imx477.json
expect 0 "*header/resolution: 0*CLB  *89736  default *" "" "$qvdb" info
[ "$(grep -c changed out)" -eq 0 ] || fail "a database without files is at its defaults"
expect 0 "*" "debug: *(hdr) *" "$qvdb" info -v simulator.json imx477.ini imx477.json -v

echo '{"root": {"metadata": {"frame_index": 5}}}' >meta.json
expect 0 "saved full.json" "" "$qvdb" meta meta.json full.json
grep -q '"frameCount": 5,' full.json || fail "full.json lacks the frame count"
expect 0 "saved short.json" "" "$qvdb" meta full.json short.json --protocol simulator
grep -q '"frame_index": 5,' short.json || fail "short.json lacks the frame index"

for words in "" "convert imx477.json" "meta meta.json" "unknown" "info -x" "convert a.json b.json --protocol" \
    "convert a.json b.json --protocol plain" "schema foo" "schema tuning meta" "schema initialization"; do
    # shellcheck disable=SC2086
    expect 2 "" "usage: qvdb convert *" "$qvdb" $words
done
expect 0 "usage: qvdb convert *" "" "$qvdb" --help
expect 0 '*"title": "Tuning document"*' "" "$qvdb" schema tuning
"$qvdb" schema >/dev/full 2>error && fail "schema: a full disk goes unnoticed"

: >empty.json
printf '{\n  "tuning": {\n    "AE_3": }\n}\n' >broken.json
printf '[DVC\n' >broken.ini
mkdir a_folder a_folder.json
cp x.ini kept.ini
refuse "missing.json: file not found (3)*" "$qvdb" convert missing.json kept.ini
refuse "empty.json: syntax error (7)*line 1, column 1" "$qvdb" convert empty.json kept.ini
refuse "a_folder: is a folder (9)*" "$qvdb" convert a_folder kept.ini
refuse "a_folder.json: is a folder (9)*" "$qvdb" convert a_folder.json kept.ini
refuse "broken.json: syntax error (7)*line 3, column 13" "$qvdb" convert broken.json kept.ini
refuse "broken.ini: syntax error (7)*line 1, column 5" "$qvdb" convert broken.ini kept.ini
refuse "empty.ini: file not found (3)*" "$qvdb" meta empty.ini kept.ini
cmp x.ini kept.ini || fail "a refused conversion changed its target"
head -c 1000 x.bin >short.bin
refuse "short.bin: *(6)*" "$qvdb" convert short.bin kept.ini
expect 1 "loaded x.ini" "qvdb: nowhere/x.json: file not found (3)" "$qvdb" convert x.ini nowhere/x.json
expect 1 "loaded x.ini" "qvdb: a_folder.json: is a folder (9)" "$qvdb" convert x.ini a_folder.json

expect 0 "ISP QVP1200L_V2407, document version 6.8.25.2${newline}2DNR strength 96, sigma 3.900${newline}saved with\
 strength 48 as changed.json" "*" "$tune" imx477.json changed.json
[ "$(grep -A4 '"2DNR_5_2": {' changed.json | grep -c '"strength": 48,')" -eq 1 ] || fail "the strength was not saved"
expect 0 "2 schedules${newline}gain    1.000  strength  40${newline}*gain  724.07?  strength 116" "*" "$schedule" imx477.json
[ "$(wc -l <out)" -eq 21 ] || fail "a schedule has twenty points"
expect 1 "" "*missing.json: file not found*" "$schedule" missing.json
expect 1 "" "*missing.json: file not found (3)" "$tune" missing.json changed.json
expect 2 "" "usage: *" "$tune" imx477.json

[ $failures -eq 0 ]
