#!/usr/bin/env bash
# What the C++ header is there to prevent doesn't compile, and the compiler says why: check_class.sh <c++> <include folder>...
set -euo pipefail
cxx=$1
shift
failures=0
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT

compile() {
    printf '#include <qv_database_c/qv_database.hpp>\nvoid use(qv::Database& database) { %s }\n' "$1" |
        "$cxx" -x c++ -std=c++17 -fsyntax-only -Wall -Wextra -Werror "${@:2}" - 2>"$errors"
}

# expect <what stands in the error, empty: compiles> <statement>
expect() {
    if compile "$2" "${includes[@]}"; then
        [[ -z $1 ]] || { echo "compiles and must not: $2"; failures=1; }
    elif [[ -z $1 ]] || ! grep -q "$1" "$errors"; then
        echo "fails for another reason than \"$1\": $2"
        head -n 5 "$errors"
        failures=1
    fi
}

includes=("${@/#/-I}")
expect "" "database.get<QvDatabaseMisc_t>().nrReloc = 1;"
expect "no category of the database" "database.get<QvDatabasePoint_t>();"
expect "" "const qv::Database& constant = database; (void)constant.get<QvDatabaseMisc_t>().nrReloc;"
expect "read-only\|const-qualified" "const qv::Database& constant = database; constant.get<QvDatabaseMisc_t>().nrReloc = 1;"
expect "" "qv::Database other = std::move(database);"
expect "deleted" "qv::Database other = database;"
exit "$failures"
