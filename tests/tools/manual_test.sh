#!/usr/bin/env bash
# Man pages and completions as their readers take them: manual_test.sh QVDB SHARE_FOLDER
set -uo pipefail
qvdb=$1 share=$2
folder=$(mktemp -d) || exit 1
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$folder" "$scratch"' EXIT
cd "$folder" || exit 1
PATH=$(dirname "$qvdb"):$PATH
failures=0

fail() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}

: >a.json
mkdir a_folder

# Formatters have nothing to say about a page, and find the description of each option in it.
commands=$("$qvdb" --help | sed -n 's/^  \([a-z]\+\) \+[a-z].*/\1/p')
[ "$(wc -w <<<"$commands")" -ge 13 ] || fail "commands in the help: $commands"
for page in qvdb $(printf 'qvdb-%s ' $commands); do
    file=$share/man/man1/$page.1
    if command -v groff >/dev/null; then
        words=$(groff -ww -man -Tascii -P-cbou "$file" 2>&1 >"$scratch/text")
        [ -z "$words" ] || fail "groff: $words"
        for option in $("$qvdb" help ${page#qvdb-} 2>/dev/null | grep -o -- '^  -.*' | grep -o -- '--[a-z]\+'); do
            grep -q -- "^ *\(-[a-z], \)\?$option\b" "$scratch/text" || fail "$page lacks $option"
        done
    fi
    if command -v mandoc >/dev/null; then
        words=$(mandoc -T lint -W warning "$file")
        [ -z "$words" ] || fail "mandoc: $words"
    fi
done

# answers WORDS... -> COMPLETION...: what bash offers for the last word. A word after another is all of the offer.
. "$share/bash-completion/completions/qvdb" || fail "no completion for bash"
[ "$(complete -p qvdb)" = "complete -F _qvdb qvdb" ] || fail "qvdb has no completion"
answers() {
    COMP_WORDS=(qvdb)
    while [ "$1" != "->" ]; do
        COMP_WORDS+=("$1")
        shift
    done
    shift
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _qvdb 2>"$scratch/error"
    [ "${COMPREPLY[*]}" = "$*" ] || fail "${COMP_WORDS[*]}: bash offers ${COMPREPLY[*]}"
    [ ! -s "$scratch/error" ] || fail "${COMP_WORDS[*]}: $(cat "$scratch/error")"
}
answers con '->' convert
answers help sch '->' schema
answers convert --fr '->' --from
answers convert --from i '->' ini image
answers convert --protocol simulator a '->' a.json a_folder
answers schema cal '->' calibration
answers get a.json A2DNR_5_2.tables '->' 'A2DNR_5_2.tables['
answers get a.json 'A2DNR_5_2.tables[1' '->' A2DNR_5_2.tables[1]. A2DNR_5_2.tables[1{0,1,2,3,4,5,6,7,8,9}].
answers get a.json 'A2DNR_5_2.tables[*].str' '->' 'A2DNR_5_2.tables[*].strength['
answers get a.json sensor.B '->' 'sensor.BLS[' 'sensor.BNR['
answers get --as simulator a.json SensorCo '->' SensorController.
answers set a.json AE_3.setP '->' AE_3.setPoint=
answers set a.json AE_3.setPoint = 3 '->'
answers diff --category AE a.json '->' a.json
answers diff --category AE_ '->' AE_3
answers check --disable unknown-m '->' unknown-member
answers get '' '->' a.json a_folder
answers get a.json 3A '->' 3AI_2.

# zsh, where it is: what stands on the line after a tab.
if command -v zsh >/dev/null; then
    cat >shell.zsh <<'EOF'
zmodload zsh/zpty
zpty shell "zsh -f -i"
zpty -w shell "fpath=($1 \$fpath); autoload -U compinit; compinit -u -d dump; bindkey '^I' complete-word"
zpty -w shell "show() { print -r -- \"\$BUFFER\" >line.new; mv line.new line }; zle -N show; bindkey '^T' show"
zpty -w shell "print -r -- is-\$((1 + 1))-up"
zpty -r -m shell answer "*is-2-up*"
for typed in "${@[2,-1]}"; do
    rm -f line
    zpty -w -n shell "$typed"$'\t\x14'
    for ((i = 0; i < 100; ++i)); do [[ -e line ]] && break; sleep 0.05; done
    cat line
    zpty -w -n shell $'\x15'
done
zpty -d shell
EOF
    timeout 60 zsh -f shell.zsh "$share/zsh/site-functions" "qvdb conv" "qvdb convert --proto" "qvdb convert --to im" \
        "qvdb get a.json AE_3.setP" "qvdb get a.json A2DNR_5_2.tabl" "qvdb set a.json AE_3.setP" "qvdb diff --category A3" \
        "qvdb info a.j" >lines 2>"$scratch/error"
    printf '%s\n' "qvdb convert " "qvdb convert --protocol " "qvdb convert --to image " "qvdb get a.json AE_3.setPoint " \
        "qvdb get a.json A2DNR_5_2.table" "qvdb set a.json AE_3.setPoint=" "qvdb diff --category A3DNR_2_1 " \
        "qvdb info a.json " | diff - lines || fail "zsh offers something else: $(cat "$scratch/error")"
fi

[ $failures -eq 0 ]
