# What zsh offers for a half typed line: capture.zsh FOLDER LINE, with the completion functions in
# FOLDER. A real shell in a terminal of its own completes the line; each offer comes on a line.
zmodload zsh/zpty
zpty shell zsh -f -i
feed() { zpty -w shell "$1" }
feed 'PROMPT= RPS1= PS2= ; unsetopt zle_bracketed_paste'
feed "fpath=(${(q)1} \$fpath); autoload -Uz compinit; compinit -u -D"
feed 'compadd() {
    local -a names
    [[ $@[(i)-O] -le $# || $@[(i)-A] -le $# || $@[(i)-D] -le $# ]] && { builtin compadd "$@"; return }
    builtin compadd -O names "$@"
    local name
    for name in "${names[@]}"; do print -r -- "offer:$name:"; done
    builtin compadd "$@"
}
finish() { print end-of-offers; exit }
zle -N finish
complete-all() { zle list-choices; zle finish }
zle -N complete-all
bindkey "^I" complete-all
print ready'
zpty -r shell line '*ready*'
zpty -w -n shell "$2"$'\t'
while zpty -r shell line; do
    [[ $line == *end-of-offers* ]] && break
    [[ $line == *offer:*: ]] || [[ $line == *offer:*:$'\r'* ]] &&
        print -r -- "${${line##*offer:}%%:*}"
done
zpty -d shell
