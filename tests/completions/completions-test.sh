#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# completions-test.sh EXECUTABLE-FOLDER [COMPLETIONS-FOLDER]: asks bash, zsh and fish for completions after
# several command lines, in a throw-away home. Without a folder of completions, the shells use the installed
# ones.
set -euo pipefail

PATH=$(realpath "$1"):$PATH
completions=${2:-}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

HOME=$(mktemp -d)
export HOME PATH completions
trap 'rm -rf "$HOME"' EXIT
unset "${!CLAUDE_LAUNCHER_@}" "${!XDG_@}"
mkdir -p "$HOME/.claude" "$HOME/.config/Claude/claude-code-sessions/conto/ente" "$HOME/cartella"
touch "$HOME/vecchio.zip" "$HOME/copione.txt"
cat >"$HOME/.config/Claude/claude-code-sessions/conto/ente/local_1.json" <<'JSON'
{"sessionId": "local_1", "title": "Una sessione", "cwd": "/", "lastActivityAt": 1}
JSON
selvane create 'Lavoro' >/dev/null
selvane create 'Cliente "X"' >/dev/null
cd "$HOME"

# Each asks one shell about all of these lines. It prints one offer a line, and END after those for one line.
bash_offers() { bash --noprofile --norc "$here/offers.bash" "$@"; }
zsh_offers() { zsh --no-rcs "$here/offers.zsh" "$@"; }
# Since version 4, fish also tells of words that merely have the typed letters in this order, which it doesn't show.
fish_offers() {
    # shellcheck disable=SC2016 # fish reads its variables
    fish -c 'test -z $completions; or source $completions/selvane.fish
        for line in $argv
            set -l word (string split " " -- $line)[-1]
            complete -C $line | string match -r -- "^"(string escape --style=regex -- $word)".*"
            echo END
        end' "$@" | cut -f 1
}

lines=()
wanted=()
expect() {
    lines+=("$1")
    wanted+=("$2")
}

expect 'selvane re' 'render-dmg-background render-icon restore-desktop'
expect 'selvane --n' '--new-profile'
expect 'selvane --v' '--version'
expect 'selvane launch lavoro --' '--windows'
expect 'selvane path ' 'cliente-x default lavoro'
expect 'selvane path lavoro ' ''
expect 'selvane set-mode l' 'lavoro'
expect 'selvane set-mode lavoro CLAUDE.md=' 'extend none separate shared'
expect 'selvane set-mode lavoro plugins=s' 'separate'
expect 'selvane create Nuovo --' '--account --from --isolated --mode'
expect 'selvane create Nuovo --isolated ' 'no yes'
expect 'selvane create Nuovo --from cl' 'cliente-x'
expect 'selvane create Nuovo --from default --mode output-styles=s' 'separate shared'
expect 'selvane import-sessions default ' 'cliente-x default lavoro'
expect 'selvane import-sessions default lavoro ' 'local_1'
expect 'selvane backup v' 'vecchio.zip'
expect 'selvane backup x.zip --solo-' '--solo-principale --solo-profili'
expect 'selvane render-icon c' 'cartella'

failures=0
for shell in bash zsh fish; do
    answers=0
    offers=()
    while IFS= read -r offer; do
        if [[ $offer != END ]]; then
            offers+=("$offer")
            continue
        fi
        found=$(printf '%s\n' "${offers[@]}" | sort -u | paste -sd ' ')
        if [[ $found != "${wanted[answers]}" ]]; then
            printf '%s after "%s": offers "%s", not "%s"\n' \
                "$shell" "${lines[answers]}" "$found" "${wanted[answers]}" >&2
            failures=$((failures + 1))
        fi
        answers=$((answers + 1))
        offers=()
        # Without what stands before "=", which some shells repeat and some don't.
    done < <("${shell}_offers" "${lines[@]}" | sed -E 's/^[^=]*=(.)/\1/; s/[=/]$//')
    if [[ $answers != "${#lines[@]}" ]]; then
        printf '%s answers %d of %d lines\n' "$shell" "$answers" "${#lines[@]}" >&2
        failures=$((failures + 1))
    fi
done
[[ $failures == 0 ]]
