#!/usr/bin/env zsh
# Prints what zsh offers at the end of a command line:  complete.zsh MANUAL_FOLDER LINE
# An interactive zsh on a terminal of its own completes the line and notes what it would show.
zmodload zsh/zpty
folder=$(mktemp -d)
trap 'zpty -d shell 2>/dev/null; rm -rf $folder' EXIT

cat >$folder/setup <<'SETUP'
PROMPT=
fpath=($MANUAL_FOLDER/zsh $fpath)
autoload -Uz compinit
compinit -u -D
compadd() {
    # Calls that only sort matches for the caller.
    if [[ ${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then
        builtin compadd "$@"
        return
    fi
    local -a found
    builtin compadd -A found "$@"
    print -rl -- $found >>$NOTES/found
    builtin compadd "$@"
}
_note_all() {
    _main_complete
    print >$NOTES/complete
}
zle -C note-all list-choices _note_all
bindkey '^I' note-all
print >$NOTES/ready
SETUP

# await FILE: up to 40 seconds.
await() {
    repeat 800; do
        [[ -e $folder/$1 ]] && return
        sleep 0.05
    done
    print -u2 "zsh does not answer: no $1"
    exit 1
}

export MANUAL_FOLDER=$1 NOTES=$folder
zpty -b shell zsh -f -i
zpty -w shell "source $folder/setup"
await ready
zpty -w -n shell "$2"$'\t'
await complete
[[ ! -e $folder/found ]] || cat $folder/found
