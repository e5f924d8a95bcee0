# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
#
# offers.zsh LINE...: prints what zsh lists after each LINE, then END, in a terminal of its own.

zmodload zsh/zpty

# read-until TEXT: what the terminal shows, up to TEXT
read-until() {
  local all= part
  while [[ $all != *$1* ]] && zpty -r terminal part; do all+=$part; done
  print -r -- "$all"
}

TERM=dumb zpty terminal zsh --no-rcs -i
zpty -w terminal "PS1=; PROMPT_EOL_MARK=; COLUMNS=500; LISTMAX=0; fpath=($completions \$fpath); autoload -Uz compinit; compinit -u -D
zstyle ':completion:*' verbose no
finish() { zle -I; print '<''END>'; BUFFER= }
zle -N finish; bindkey '^I' list-choices; bindkey '^T' finish; print READ''Y"
read-until READY >/dev/null
for line in "$@"; do
  zpty -w -n terminal "$line"$'\t\x14'
  shown=$(read-until '<END>')
  shown=${shown%<END>*}
  shown=${shown//$'\r'/$'\n'}
  print -rl -- ${=${(f)shown}:#*selvane*} END
done
zpty -d terminal
