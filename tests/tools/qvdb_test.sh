#!/bin/sh
# Calls qvdb and the two examples: qvdb_test.sh QVDB EXAMPLE_TUNE EXAMPLE_SCHEDULE SOURCE_FOLDER
set -u
qvdb=$1 tune=$2 schedule=$3 documents=$4/examples/documents
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
cp "$documents"/imx477* . || exit 1
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

# says LINE...: whole lines of what a call of qvdb that went well says.
says() {
    for line in "$@"; do
        grep -qxF -- "$line" error || fail "it doesn't say '$line' but: $(cat error)"
    done
}

# refuse TEXT COMMAND...: one line behind those of what was loaded, exit status 1.
refuse() {
    text=$1
    shift
    expect 1 "" "*qvdb: $text" "$@"
    [ "$(grep -vc '^loaded ' error)" -eq 1 ] || fail "$*: more than one line: $(cat error)"
}

# usage TEXT WORDS...: the one line about wrong words, exit status 2.
usage() {
    text=$1
    shift
    expect 2 "" "qvdb: $text; see qvdb *--help" "$qvdb" "$@"
    [ "$(wc -l <error)" -eq 1 ] || fail "$*: more than one line: $(cat error)"
}

newline='
'
# Through all forms; what a file sets, and what the form written does not carry.
expect 0 "" "*${newline}saved x.ini" "$qvdb" convert imx477.json x.ini
says "loaded imx477.json (version, calibration, tuning): sets 65033 values in 50 categories" \
    "x.ini does not carry AE_3" "x.ini does not carry OPT.snapshotNumber"
cmp x.ini imx477.ini || fail "x.ini differs from the sample"
expect 0 "" "loaded x.ini (initialization): sets 167 values in 6 categories${newline}loaded imx477.json *${newline}x.bin does \
not carry DUMP${newline}x.bin does not carry AGE${newline}saved x.bin" "$qvdb" convert x.ini imx477.json -o x.bin
[ "$(wc -c <x.bin)" -eq 564730 ] || fail "an image has 564730 bytes"
expect 0 "" "loaded x.bin (image): sets 49 categories${newline}saved back.json" "$qvdb" convert x.bin back.json
expect 0 "" "*does not carry SS.driverName, *" "$qvdb" convert x.bin simulator.json --protocol simulator
[ "$(grep -c '"classname": ' simulator.json)/$(grep -c '"class": ' simulator.json)" = 19/23 ] || fail "class objects"
expect 0 "" "" "$qvdb" convert -q simulator.json x.jsn
cmp -s x.jsn x.bin && fail "the simulator's form carries all"
expect 0 "" "*imx477.json:6: sets 40414 values of CLB*" "$qvdb" convert -v imx477.json x.bin

# Layers, comments, words that nobody knows, versions.
cat >over.json <<'EOF'
// a layer
{"version": {"versionNumber": "7.1"},
 "header": {"sensor_name": "other"},
 "tuning": {"AE_3": {"setPoint": 3, "setPiont": 4}, "A2DNR_5_2": {"tables": [{"strength": [2]}]}}}
EOF
expect 0 "" "*" "$qvdb" convert imx477.json over.json -o out.json
says "qvdb: warning: over.json is of version 7.1, and this library is of 6.8.25.2" \
    "over.json replaces the whole calibration" "over.json replaces A2DNR_5_2.tables (1 item now, 2 before)" \
    "out.json does not carry the comments of over.json, 1" \
    "out.json does not carry what is unknown in over.json: AE_3.setPiont (line 4)"
grep 'not match' error && fail "the library's own words about versions have their labels the wrong way round"
expect 0 "3${newline}1" "*" "$qvdb" get out.json AE_3.setPoint A2DNR_5_2.tableNumber
expect 0 "" "*x.bin replaces all that an image holds*" "$qvdb" convert imx477.json x.bin -o out.json

# What sets nothing, or may not be what it is taken for.
for text in '{"tuning": [1, 2]}' '[]' 5; do
    echo "$text" >nothing.json
    expect 0 "" "*warning: nothing.json sets nothing*" "$qvdb" convert nothing.json out.json
done
head -c 600000 imx477.json >noise.bin
tail -c 170000 imx477.json >>noise.bin
expect 0 "" "*warning: noise.bin may be no image*" "$qvdb" convert noise.bin out.bin
cp imx477.json x.JSON
expect 1 "" "*x.JSON is taken for a binary image*${newline}qvdb: x.JSON: *(6): it is 429* bytes long, *" \
    "$qvdb" convert x.JSON out.bin
expect 0 "" "loaded x.JSON (version, *" "$qvdb" convert --from json x.JSON out.bin

# Calibration text.
expect 0 "" "*loaded imx477_calibration.txt: sets CCM_1_1, LSC_4${newline}saved out.json" \
    "$qvdb" convert back.json imx477_calibration.txt -o out.json
expect 0 "2.18464${newline}-12${newline}127" "" "$qvdb" get out.json 'CCM_1_1.ccMatrix[0]' 'CCM_1_1.ccOffset[0]' 'LSC_4.xSize[0]'
printf 'gains = [ 7 8\t9 ]\nodd = [ 1 x ]\nbig = [ 70000 ]\n' >list.txt
expect 0 "" "*loaded list.txt: sets CCM_1_1.ccOffset*" \
    "$qvdb" convert back.json list.txt -o out.json --key CCM_1_1.ccOffset=gains
expect 0 "[[]7, 8, 9]" "" "$qvdb" get out.json CCM_1_1.ccOffset
refuse "list.txt: *(15): neither colour nor shading*" "$qvdb" convert list.txt out.json
refuse "list.txt: there is no list gain2 (15)" "$qvdb" convert list.txt out.json --key CCM_1_1.ccOffset=gain2
refuse "list.txt: odd: x is no number" "$qvdb" convert list.txt out.json --key CCM_1_1.ccOffset=odd
refuse "list.txt: big: 70000 does not fit LSC_4.xSize[[]0]" "$qvdb" convert list.txt out.json --key LSC_4.xSize=big
refuse "list.txt: gains has 3 items, and AE_3.setPoint holds 1" "$qvdb" convert list.txt out.json --key AE_3.setPoint=gains
refuse "--key CCM_1_1.ccOfset: CCM_1_1 has no member ccOfset (did you mean ccOffset[?])" \
    "$qvdb" convert list.txt out.json --key CCM_1_1.ccOfset=gains

# Streams.
"$qvdb" convert - -o - <back.json 2>error | "$qvdb" convert -q - piped.bin || fail "a pipe: $(cat error)"
"$qvdb" convert -q back.json straight.bin
cmp piped.bin straight.bin || fail "a pipe changes a set"
says "saved standard output"
"$qvdb" convert -q x.bin /dev/stdout | grep -q '^  "tuning": {' || fail "/dev/stdout is no JSON"
"$qvdb" convert -q - - --from image --to ini <x.bin | cmp - imx477.ini || fail "an image from a stream"
refuse "standard output: No space left on device" sh -c '"$0" convert x.bin - >/dev/full' "$qvdb"
expect 2 "" "qvdb: standard output: *" sh -c '"$0" schema >/dev/full || exit 2' "$qvdb"
for trap in : "trap '' PIPE"; do
    line=$(sh -c "$trap; { \"\$0\" convert -q x.bin -; echo \$? >status; } | head -n 1" "$qvdb" 2>error)
    [ "$line/$(cat error)" = "{/" ] || fail "a reader that goes away: $line/$(cat error)"
    [ "$(cat status)" -gt 0 ] || fail "a reader that goes away, and status 0"
done

# Info and frame metadata.
expect 0 "imx477.json${newline}  form       json${newline}  holds      version, calibration, tuning${newline}\
  version    6.8.25.2${newline}  date       2026-11-21T00:00:00${newline}  sets       65033 values of 50 categories${newline}\
*creator    calibration bench 2*header/resolution\[0\]/framerate: 3*awb/illumination: 7*cc: 12*lsc: 8*\
RAM  *-  run time *MISC  *83         4  changed *" "" "$qvdb" info imx477.json
expect 0 "calibration${newline}  none${newline}*CLB  *89736         -  default *" "" "$qvdb" info
expect 0 '*"name": "imx477.ini", "form": "ini"*"set": true, "values": 60, *' "" "$qvdb" info --json x.ini imx477.ini
echo '{"root": {"metadata": {"frame_index": 5}}}' >meta.json
expect 0 "" "saved full.json" "$qvdb" meta meta.json full.json
grep -q '"frameCount": 5,' full.json || fail "full.json lacks the frame count"
expect 0 '*"frame_index": 5,*' "saved standard output" sh -c '"$0" meta - - --protocol simulator <full.json' "$qvdb"
expect 0 "" "*warning: imx477.json sets nothing of the frame metadata*" "$qvdb" meta imx477.json full.json

# Words that are wrong.
usage "what to do is missing*" ""
usage "there is no command convrt (did you mean convert[?])" convrt a b
usage "there is no command sche (did you mean schema[?])" help sche
usage "the command comes first, before --quiet" --quiet
usage "convert: wants IN... [[]OUT], and nothing was given" convert
usage "convert: where to write is missing behind imx477.json" convert imx477.json
usage "convert: 3 names are given; -o says which file to write, *" convert x.ini imx477.json x.bin
usage "convert: standard input can be read only once" convert - - -o x.bin
usage "convert: no calibration text can be written; *" convert x.bin out.txt
usage "convert: --key wants PATH=KEY, not a" convert imx477_calibration.txt --key a -o out.json
usage "convert: --key is for calibration text, *" convert imx477.json --key a=b -o out.json
usage "convert: --protocol wants NAME behind it" convert a.json b.json --protocol
usage "convert: --protocol is one of standard|simulator, not simulater (did you mean simulator[?])" \
    convert a.json b.json --protocol simulater
usage "convert: unknown option --form (did you mean --from[?])" convert a.json b.json --form json
usage "at: --gain wants a number, not x" at a.json AE_3 --gain x
usage "meta: wants IN OUT, and meta.json is the last word" meta meta.json
usage "meta: wants IN OUT; c.json is one word too many" meta a.json b.json c.json
usage "schema: there is no schema of sim[a-z]*(did you mean simulator[?])" schema simulater
expect 0 "qvdb checks, *" "" "$qvdb" help
expect 0 "usage: qvdb convert *" "" "$qvdb" convert --help
expect 0 "qvdb 0.*" "" "$qvdb" --version
for command in $("$qvdb" help | sed -n 's/^  \([a-z]*\) .*/\1/p') ""; do
    "$qvdb" help ${command:+"$command"} | grep -E '.{81}' && fail "the help of $command is wider than 80 columns"
done

# Refusals leave the target as it was.
: >empty.json
printf '{\n  "tuning": {\n    "AE_3": }\n}\n' >broken.json
sed '565s/},/,/' imx477.json >open.json
echo '{"header": {"date": "x"}, "sensor": {"LSC": [{}, {}, {}, {}, {}, {}, {}, {}, {}]}}' >long.json
printf '[DVC\n' >broken.ini
mkdir a_folder a_folder.json
ln -s kept.ini link.ini
cp x.ini kept.ini
refuse "missing.json: file not found (3)" "$qvdb" convert missing.json kept.ini
refuse "empty.json: syntax error (7): *line 1, column 1" "$qvdb" convert empty.json kept.ini
refuse "a_folder: is a folder (9)" "$qvdb" convert --from image a_folder kept.ini
refuse "broken.json: syntax error (7): *line 3, column 13" "$qvdb" convert broken.json kept.ini
refuse "open.json: syntax error (7): *; the object opened at line 555, column 17 was never closed" \
    "$qvdb" convert open.json kept.ini
refuse "long.json: *(6): sensor.LSC at line 1, column 45 has 9 items, and 8 is the most" "$qvdb" convert long.json kept.ini
refuse "broken.ini: syntax error (7)*line 1, column 5" "$qvdb" convert broken.ini kept.ini
refuse "broken.json: syntax error (7): *line 3, column 13" "$qvdb" meta broken.json kept.ini
head -c 1000 x.bin >short.bin
refuse "short.bin: *(6): it is 1000 bytes long, and an image has 564730" "$qvdb" convert short.bin kept.ini
refuse "kept.ini is also read; -f *" "$qvdb" convert imx477.json kept.ini -o kept.ini
refuse "kept.ini is also read as link.ini; -f *" "$qvdb" convert link.ini kept.ini
cmp x.ini kept.ini || fail "a refused conversion changed its target"
expect 0 "" "*saved kept.ini" "$qvdb" convert -f link.ini kept.ini
refuse "nowhere/x.json: file not found (3)" "$qvdb" convert x.ini nowhere/x.json
refuse "a_folder.json: is a folder (9)" "$qvdb" convert x.ini a_folder.json

# A process that is short of memory says so: it ends by no signal, and nothing incomplete passes for a success. 127 is the
# loader's own. Sanitizers have no place below such limits.
if (ulimit -v 60000 && "$qvdb" --version) >out 2>&1; then
    for limit in $(seq 8000 80 19000); do
        for command in "check imx477.json" "convert -f imx477.json y.ini"; do
            (ulimit -v "$limit" && exec "$qvdb" $command) >out 2>error # shellcheck disable=SC2086
            found=$?
            case $found,$(cat error) in 127,* | 0,"" | 0,loaded*saved* | [12],*memory* | [12],*arguments*) ;;
            *) fail "$command below $limit kB: status $found and $(cat error)" ;; esac
        done
    done
fi

# The examples.
expect 0 "ISP QVP1200L_V2407, document version 6.8.25.2${newline}2DNR strength 96, sigma 3.900${newline}saved with\
 strength 48 as changed.json" "*" "$tune" imx477.json changed.json
[ "$(grep -A4 '"2DNR_5_2": {' changed.json | grep -c '"strength": 48,')" -eq 1 ] || fail "the strength was not saved"
expect 0 "2 schedules${newline}gain    1.000  strength  40${newline}*gain  724.07?  strength 116" "*" "$schedule" imx477.json
[ "$(wc -l <out)" -eq 21 ] || fail "a schedule has twenty points"
expect 1 "" "*missing.json: file not found*" "$schedule" missing.json
expect 1 "" "*missing.json: file not found (3)" "$tune" missing.json changed.json
expect 2 "" "usage: *" "$tune" imx477.json

[ $failures -eq 0 ]
