#!/usr/bin/env bash
# Tells which lines and branches of the libraries the suite runs through, on a bare Debian 12; the list of each file stands in
# build/coverage/branches.txt, and every line in build/coverage/html. A branch that only an exception takes, of which g++
# puts one behind each call, is not counted. Objects that a test compiles for itself are left out: of a function that
# they never run gcov doesn't tell which branches these are.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh

install_packages "${test_packages[@]}" gcovr
cmake --preset coverage -DQV_TESTS=ON >/dev/null
cmake --build --preset coverage | { grep -v '^\[' || true; }
find build/coverage -name '*.gcda' -delete
ctest --preset coverage --output-on-failure | tail -n 4

report() {
    gcovr -r . --filter source/ --filter private/ --filter 'support/[a-z]*/source/' --exclude-throw-branches \
        --exclude-unreachable-branches --exclude-directories '.*counted_objects\.dir' -j 2 "$@"
}
mkdir -p build/coverage/html
report build/coverage --json build/coverage/coverage.json
report -a build/coverage/coverage.json --txt build/coverage/branches.txt --branches \
    --html-details build/coverage/html/index.html --print-summary
