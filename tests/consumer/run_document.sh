#!/usr/bin/env bash
# Does what a document shows, in this folder: run_document.sh DOCUMENT. A block of code below a line such as
#     `meson.build`:
# is the file of that name; blocks of commands are run in order.
set -euo pipefail
script=$(mktemp)
trap 'rm -f "$script" "$script.log"' EXIT
awk -v script="$script" '
    /^```/ && inside { inside = 0; close(target); next }
    /^```sh$/ { inside = 1; target = script; blocks++; next }
    /^```/ { inside = 1; target = name == "" ? "/dev/null" : name; name = ""; files++; next }
    inside && target == script { print >> target; next }
    inside { print > target; next }
    /^`[A-Za-z_.]+`:$/ { name = substr($0, 2, length($0) - 3) }
    !/^$/ && !/^`[A-Za-z_.]+`:$/ { name = "" }
    END { if (blocks < 1) { print "no commands in " FILENAME; exit 1 } }
' "$1"
bash -euo pipefail "$script" >"$script.log" 2>&1 || { cat "$script.log"; echo "$1: a command that it shows fails"; exit 1; }
echo "$(grep -c . "$script") commands run"
