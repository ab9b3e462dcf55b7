#!/usr/bin/env bash
# Runs a fuzz target over its corpus and on for some seconds of wall clock, on a bare Debian 12: scripts/fuzz.sh TARGET SECONDS.
# TARGET is the name of a source in fuzz/, or "all": each of them for so long, two at a time. What a target finds worth
# keeping stays in build/fuzz/work, from where the next run goes on; an input that breaks it goes to build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

targets=(json documents initialization images metadata calibration catalog)
if [ $# -ne 2 ]; then
    echo "usage: scripts/fuzz.sh TARGET SECONDS, where TARGET is one of: ${targets[*]} all" >&2
    exit 2
fi
seconds=$2
[ "$1" = all ] || targets=("$1")

install_packages "${fuzz_packages[@]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset fuzz >"$log"
cmake --build --preset fuzz >>"$log" 2>&1 || { tail -n 30 "$log"; exit 1; }

fuzz() {
    local target=$1 folder=build/fuzz outcome=ok dictionary
    local log=$folder/$target.log
    mkdir -p $folder/work/"$target" $folder/seeds/"$target" $folder/found
    dictionary=fuzz/$target.dict
    [ -f "$dictionary" ] || dictionary=$folder/seeds/$target.dict
    [ -f "$dictionary" ] || dictionary=
    $folder/bin/fuzz_"$target" -max_total_time="$seconds" -max_len=4096 ${dictionary:+-dict="$dictionary"} \
        -print_final_stats=1 -artifact_prefix="$folder/found/$target-" \
        $folder/work/"$target" fuzz/corpus/"$target" $folder/seeds/"$target" >"$log" 2>&1 || outcome=FAILED
    printf '%-16s %-6s %9s runs, %5s edges  %s\n' "$target" $outcome \
        "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" \
        "$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)" "$log"
    [ $outcome = ok ] || { grep -a -m 1 -A 12 -E '^broken:|ERROR: |runtime error: ' "$log"; return 1; }
}

failed=0
for ((i = 0; i < ${#targets[@]}; i += 2)); do
    fuzz "${targets[i]}" &
    first=$!
    [ -z "${targets[i + 1]:-}" ] || fuzz "${targets[i + 1]}" || failed=1
    wait $first || failed=1
done
exit $failed
