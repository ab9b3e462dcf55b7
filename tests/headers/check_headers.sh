#!/usr/bin/env bash
# Compiles every public header alone (twice, for its guard) and strictly, as C and as C++, those for C++ only as that:
# check_headers.sh <cc> <c++> <include folder>...
set -euo pipefail
cc=$1 cxx=$2
shift 2

mapfile -t headers < <(find "$@" -name '*.h' -o -name '*.hpp')
failures=$((${#headers[@]} == 0))
for header in "${headers[@]}"; do
    # Without this the reference passes over the whole header, and over what it lacks.
    head -n 1 "$header" | grep -qE '^(/\*\*|///) @file$' || { echo "$header does not begin with @file"; failures=1; }
    for standard in c11 c17 c++17 c++20; do
        compiler=$cc language=c
        [[ $standard == c++* ]] && compiler=$cxx language=c++
        [[ $header == *.hpp && $language == c ]] && continue
        printf '#include "%s"\n#include "%s"\ntypedef int alone;\n' "$header" "$header" |
            "$compiler" -x $language -std=$standard -fsyntax-only -Wall -Wextra -Wpedantic -Werror "${@/#/-I}" - ||
            { echo "$header does not compile alone as $standard"; failures=1; }
    done
done
exit "$failures"
