#!/usr/bin/env bash
# Prints what bash offers at the end of a command line:  complete.bash MANUAL_FOLDER LINE
source /usr/share/bash-completion/bash_completion
set -e
line=$2
program=${line%% *}
source "$1/bash/$program"

# Only a shell that is completing has these.
compopt() { :; }
# readline splits at blanks, and takes an equals sign for a word of its own.
read -ra COMP_WORDS <<<"${line//=/ = }"
[[ $line != *" " ]] || COMP_WORDS+=("")
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
COMP_LINE=$line
COMP_POINT=${#line}

[[ $(complete -p "$program") =~ -F\ ([^ ]+) ]]
"${BASH_REMATCH[1]}" "$program" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}" || true
printf '%s\n' "${COMPREPLY[@]}"
