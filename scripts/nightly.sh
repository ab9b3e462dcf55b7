#!/usr/bin/env bash
# Runs the long forms of the tests that try to break the libraries, and valgrind over the other test programs, on a bare
# Debian 12. One line each; the logs stand in build/nightly. Arguments, if any, name the lines to run. With --short in front
# all lines run in the setting of each build, which tries this script.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

export QV_NIGHT=1
fuzz_seconds=$((30 * 60))
mutants=200
if [ "${1:-}" = --short ]; then
    unset QV_NIGHT
    fuzz_seconds=20
    mutants=20
    shift
fi
install_packages "${test_packages[@]}" valgrind
logs=build/nightly
mkdir -p "$logs"
chosen=" $* "
failed=0

build() {
    cmake --preset "$1" -DQV_TESTS=ON >"$logs/build_$1.log"
    cmake --build --preset "$1" >>"$logs/build_$1.log" 2>&1 || { tail -n 30 "$logs/build_$1.log"; exit 1; }
}

# line <name> <what it is> <command...>
line() {
    local name=$1 what="${QV_NIGHT:+$2}" begin=$SECONDS outcome=ok
    what=${what:-in short: $2}
    shift 2
    [ "$chosen" = "  " ] || [[ $chosen == *" $name "* ]] || return 0
    "$@" >"$logs/$name.log" 2>&1 || { outcome=FAILED; failed=1; }
    printf '%-22s %-6s %5d s  %s\n' "$name" "$outcome" $((SECONDS - begin)) "$what"
}

memory() {
    valgrind -q --error-exitcode=9 --leak-check=full --errors-for-leak-kinds=definite --show-leak-kinds=definite \
        --suppressions=tests/database/leaks.valgrind.supp "$bin/$1" --gtest_brief=1
}

build release
bin=build/release/bin
line allocations "each allocation of each operation refused, once and from then on" $bin/endurance_allocations
line allocations_contract "the same with siblings that have nothing beyond their contracts" \
    env LD_LIBRARY_PATH=build/release/contract $bin/endurance_allocations --gtest_filter=AllocationsOpen.*
line kills "10,000 kills a form" $bin/endurance_kills
line disks "full disks, limits, rights, names, links, pipes" $bin/endurance_disks
line locale "all forms with a decimal comma" $bin/endurance_locale
line threads "two databases in two threads, 400 turns each" $bin/endurance_threads
line round_trips "36,000 random databases through two forms" $bin/endurance_round_trips
line floats "all floats through text and back" $bin/endurance_floats
for program in common_test json_test test_initialization test_database test_database_failures test_database_forms; do
    line "valgrind_$program" "memory that is read, written or lost wrongly" memory $program
done

line fuzz "seven fuzz targets, $fuzz_seconds s each, two at a time" scripts/fuzz.sh all $fuzz_seconds
line mutants "$mutants changes to the code, of which tests find nine of ten" scripts/mutants --number $mutants --jobs 2

if [ "$chosen" = "  " ] || [[ $chosen == *" tsan"* ]]; then
    build tsan
    line tsan_threads "the same threads under ThreadSanitizer" build/tsan/bin/endurance_threads
    line tsan_common "queues, tracer and saves with threads under ThreadSanitizer" build/tsan/bin/common_test
fi
exit $failed
