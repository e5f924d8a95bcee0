# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC1091
#
# offers.bash LINE...: prints what bash offers after each LINE, then END. Calls the completion as readline does.

source /usr/share/bash-completion/bash_completion
if [[ -n $completions ]]; then
    source "$completions/selvane.bash"
else
    _completion_loader selvane
fi
compopt() { :; } # works only within readline

for COMP_LINE in "$@"; do
    COMP_POINT=${#COMP_LINE}
    COMP_WORDS=()
    rest=$COMP_LINE
    while [[ $rest =~ ^\ *([^\ =]+|=) ]]; do
        COMP_WORDS+=("${BASH_REMATCH[1]}")
        rest=${rest:${#BASH_REMATCH[0]}}
    done
    [[ $COMP_LINE != *' ' ]] || COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _selvane
    [[ ${#COMPREPLY[@]} == 0 ]] || printf '%s\n' "${COMPREPLY[@]}"
    echo END
done
