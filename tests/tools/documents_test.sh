#!/usr/bin/env bash
# Runs the commands that README and docs show for qvdb, as they stand there: documents_test.sh SOURCE_FOLDER
# A line counts that calls qvdb or sets something up for one that does; what builds or installs has a test of its own.
# And what they link to is there.
set -euo pipefail
cd "$1"
number=0
for document in README.md docs/*.md examples/documents/*.md; do
    { grep -oE '\]\([^)#:]+[)#]' "$document" || true; } | sed -E 's/^..//; s/.$//' | while read -r link; do
        [ -e "$(dirname "$document")/$link" ] || { echo "$document: $link is not there"; exit 1; }
    done
    commands=$(awk '/^```sh$/ { shell = 1; next } /^```$/ { shell = 0 } shell' "$document" |
        grep -E '^(build/release/bin/)?qvdb |^(PATH|documents)=|^echo |^python3 -m jsonschema' || true)
    [ -n "$commands" ] || continue
    number=$((number + $(wc -l <<<"$commands")))
    bash -euo pipefail -c "$commands" >/dev/null || { echo "$document: a command that it shows fails"; exit 1; }
done
[ "$number" -ge 10 ] || { echo "only $number commands found"; exit 1; }
echo "$number commands run"
