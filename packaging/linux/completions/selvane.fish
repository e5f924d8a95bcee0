# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# fish completion for selvane

# The words after the program's name and before the one being typed.
function __selvane_words
    set -l words (commandline -opc)
    set -e words[1]
    printf '%s\n' $words
end

# Whether the command is one of those named and already has this many arguments.
function __selvane_argument -a count
    set -l words (__selvane_words)
    test (count $words) -eq (math $count + 1); and contains -- $words[1] $argv[2..-1]
end

# The first two fields of records: the completion and its description.
function __selvane_profiles
    selvane list 2>/dev/null | string replace -r '^([^\t]*\t[^\t]*).*' '$1'
end

function __selvane_sessions
    selvane sessions (__selvane_words)[2] 2>/dev/null | string replace -r '^([^\t]*\t[^\t]*).*' '$1'
end

function __selvane_modes
    for part in skills agents commands output-styles rules
        printf "$part=%s\n" shared separate none
    end
    printf 'CLAUDE.md=%s\n' shared separate extend none
    for part in settings plugins mcp
        printf "$part=%s\n" separate none
    end
end

complete -c selvane -f
complete -c selvane -n __fish_is_first_token -l new-profile -d 'Open the windows and ask for a new profile'
complete -c selvane -n __fish_is_first_token -l manage -d 'Open the management window'
complete -c selvane -n __fish_is_first_token -s h -l help -d 'Say how it is used'
complete -c selvane -n __fish_is_first_token -l version -d 'Say which version it is'

complete -c selvane -n __fish_is_first_token -a list -d 'List the profiles'
complete -c selvane -n __fish_is_first_token -a create -d 'Make a profile'
complete -c selvane -n __fish_is_first_token -a sync -d 'Bring the links to the source up to date'
complete -c selvane -n __fish_is_first_token -a launch -d 'Open Claude Desktop with a profile'
complete -c selvane -n __fish_is_first_token -a path -d 'Print the configuration folder'
complete -c selvane -n __fish_is_first_token -a items -d 'List the items of the collections'
complete -c selvane -n __fish_is_first_token -a set-mode -d 'Change how a part is taken from the source'
complete -c selvane -n __fish_is_first_token -a install-helper -d 'Write claude-profile'
complete -c selvane -n __fish_is_first_token -a sessions -d 'List the sessions of the Code tab'
complete -c selvane -n __fish_is_first_token -a import-sessions -d 'Take sessions along to another profile'
complete -c selvane -n __fish_is_first_token -a restore-desktop -d 'Put swapped data folders back'
complete -c selvane -n __fish_is_first_token -a desktop-status -d 'Show accounts and open copies'
complete -c selvane -n __fish_is_first_token -a backup -d 'Write an archive'
complete -c selvane -n __fish_is_first_token -a processes -d 'List the processes of Claude Desktop'
complete -c selvane -n __fish_is_first_token -a render-icon -d 'Draw the icon'
complete -c selvane -n __fish_is_first_token -a render-dmg-background -d 'Draw the disk image background'

complete -c selvane -n '__selvane_argument 0 sync launch path items sessions set-mode import-sessions' \
    -a '(__selvane_profiles)'
complete -c selvane -n '__selvane_argument 1 launch' -l windows -d 'Ask and tell in the windows'
complete -c selvane -n '__selvane_argument 1 import-sessions' -a '(__selvane_profiles)'
complete -c selvane -n '__selvane_argument 1 set-mode' -a '(__selvane_modes)'
complete -c selvane -n '__fish_seen_subcommand_from import-sessions; and test (count (__selvane_words)) -ge 3' \
    -a '(__selvane_sessions)'
complete -c selvane -n '__fish_seen_subcommand_from create' -x -l from -d Source -a '(__selvane_profiles)'
complete -c selvane -n '__fish_seen_subcommand_from create' -x -l account -d 'Whose account it uses' \
    -a '(__selvane_profiles)'
complete -c selvane -n '__fish_seen_subcommand_from create' -x -l mode -d 'Share mode' -a '(__selvane_modes)'
complete -c selvane -n '__fish_seen_subcommand_from create' -x -l isolated -d 'Keep other instructions out' -a 'yes no'
complete -c selvane -n '__selvane_argument 0 backup' -a '(__fish_complete_suffix .zip)'
complete -c selvane -n '__fish_seen_subcommand_from backup' -l solo-principale -d 'The built-in profile only'
complete -c selvane -n '__fish_seen_subcommand_from backup' -l solo-profili -d 'The other profiles only'
complete -c selvane -n '__selvane_argument 0 render-icon render-dmg-background' -a '(__fish_complete_directories)'
