#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# completions-test.sh EXECUTABLE-FOLDER [COMPLETIONS-FOLDER]: asks bash, zsh and fish what they offer after some
# beginnings of a command line, in a throw-away home. Without a folder of completions the shells look for those
# that are installed.
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

# One a line, sorted; without what stands before "=", which some shells repeat and some don't.
bash_offers() { bash --noprofile --norc "$here/offers.bash" "$1"; }
zsh_offers() { zsh --no-rcs "$here/offers.zsh" "$1"; }
fish_offers() {
    # shellcheck disable=SC2016 # fish reads its variables
    line=$1 fish -c 'test -z $completions; or source $completions/selvane.fish; complete -C $line' | cut -f 1
}
offers() {
    "$1_offers" "$2" | sed -E 's/^[^=]*=(.)/\1/; s/[=/]$//' | sort -u | paste -sd ' '
}

failures=0
expect() {
    local line=$1 wanted=$2 shell found
    for shell in bash zsh fish; do
        found=$(offers "$shell" "$line")
        [[ $found != "$wanted" ]] || continue
        printf '%s after "%s": offers "%s", not "%s"\n' "$shell" "$line" "$found" "$wanted" >&2
        failures=$((failures + 1))
    done
}

expect 'selvane re' 'render-dmg-background render-icon restore-desktop'
expect 'selvane --n' '--new-profile'
expect 'selvane --v' '--version'
expect 'selvane path ' 'cliente-x default lavoro'
expect 'selvane path lavoro ' ''
expect 'selvane set-mode l' 'lavoro'
expect 'selvane set-mode lavoro CLAUDE.md=' 'extend none separate shared'
expect 'selvane set-mode lavoro plugins=s' 'separate'
expect 'selvane create Nuovo --' '--account --from --mode'
expect 'selvane create Nuovo --from cl' 'cliente-x'
expect 'selvane create Nuovo --from default --mode output-styles=s' 'separate shared'
expect 'selvane import-sessions default ' 'cliente-x default lavoro'
expect 'selvane import-sessions default lavoro ' 'local_1'
expect 'selvane backup v' 'vecchio.zip'
expect 'selvane backup x.zip --solo-' '--solo-principale --solo-profili'
expect 'selvane render-icon c' 'cartella'

[[ $failures == 0 ]]
