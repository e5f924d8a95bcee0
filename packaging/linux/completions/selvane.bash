# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# bash completion for selvane

# Offers the first fields of records that begin with the typed text.
_selvane_records() {
    local record
    while IFS=$'\t' read -r record _; do
        [[ $record == "$cur"* ]] && COMPREPLY+=("$(printf '%q' "$record")")
    done < <("$@" 2>/dev/null)
}

_selvane_words() {
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$*" -- "$cur")
}

# PART=MODE: readline ends a word at "=", so after it only the mode is offered.
_selvane_modes() {
    local part=${cur%%=*}
    if [[ $cur != *=* ]]; then
        _selvane_words {skills,agents,commands,output-styles,rules,CLAUDE.md,settings,plugins,mcp}=
        compopt -o nospace
        return
    fi
    cur=${cur#*=}
    case $part in
        skills | agents | commands | output-styles | rules) _selvane_words shared separate none ;;
        CLAUDE.md) _selvane_words shared separate extend none ;;
        settings | plugins | mcp) _selvane_words separate none ;;
    esac
}

_selvane() {
    local cur prev words cword
    _get_comp_words_by_ref -n = cur prev words cword
    COMPREPLY=()
    if ((cword == 1)); then
        _selvane_words list create sync launch path items set-mode install-helper sessions import-sessions \
            restore-desktop desktop-status backup processes render-icon render-dmg-background --new-profile \
            --manage --help --version
        return
    fi
    case ${words[1]} in
        create)
            case $prev in
                --from | --account) _selvane_records selvane list ;;
                --mode) _selvane_modes ;;
                --isolated) _selvane_words yes no ;;
                *) _selvane_words --from --account --mode --isolated ;;
            esac
            ;;
        sync | path | items | sessions)
            ((cword > 2)) || _selvane_records selvane list
            ;;
        launch)
            case $cword in
                2) _selvane_records selvane list ;;
                3) _selvane_words --windows ;;
            esac
            ;;
        set-mode)
            case $cword in
                2) _selvane_records selvane list ;;
                3) _selvane_modes ;;
            esac
            ;;
        import-sessions)
            if ((cword < 4)); then
                _selvane_records selvane list
            else
                _selvane_records selvane sessions "${words[2]}"
            fi
            ;;
        backup)
            if ((cword == 2)); then
                _filedir zip
            else
                _selvane_words --solo-principale --solo-profili
            fi
            ;;
        render-icon | render-dmg-background)
            ((cword > 2)) || _filedir -d
            ;;
    esac
} && complete -F _selvane selvane
