#!/usr/bin/env bash
# The libraries export what their headers promise, neither more nor less, and the database needs nothing of its siblings
# beyond that: check_exports.sh {<library> <include folder>}... -- <object of the database>...
# The database library stands last before the dashes.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The names behind export macros: comments and preprocessor lines away, then the last word before a bracket or the end.
promised() {
    find "$1" -name '*.h' -exec cat {} + | sed '/^ *#/d' | tr '\n' ' ' | sed -E 's:/\*([^*]|\*+[^*/])*\*+/: :g' |
        grep -oE 'QV_[A-Z]+_API[^(;]*' | sed -E 's/.*[ *]([A-Za-z0-9_]+) *$/\1/' | sort -u
}

# Weak symbols of the standard library's templates come along wherever those are used.
names() {
    nm "$@" | awk 'NF > 1 { print $NF }' | grep -vE '^_ZZ?NK?St' | sort -u
}

status=0
expectNone() {
    [[ ! -s $2 ]] || { echo "$1:"; cat "$2"; status=1; }
}

: >"$work/siblings"
while [[ $1 != -- ]]; do
    library=$1
    promised "$2" >"$work/promised"
    nm -D --defined-only "$library" | awk '{ print $NF }' | sort -u >"$work/exported"
    comm -13 "$work/promised" "$work/exported" >"$work/more"
    comm -23 "$work/promised" "$work/exported" >"$work/less"
    expectNone "$library exports what no header promises" "$work/more"
    expectNone "$library lacks what its headers promise" "$work/less"
    [[ $3 == -- ]] || cat "$work/promised" >>"$work/siblings"
    shift 2
done
shift

names --defined-only "$@" | sort -u - "$work/siblings" >"$work/known"
{ names -D --undefined-only "$library"; names --undefined-only "$@"; } | grep -E '^Qv|^hTracer|^_ZNK?2qv' |
    sort -u | comm -23 - "$work/known" >"$work/foreign"
expectNone "the database needs what no sibling's header promises" "$work/foreign"
exit "$status"
