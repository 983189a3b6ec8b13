#!/usr/bin/env fish
# Prints what fish offers at the end of a command line:  complete.fish MANUAL_FOLDER LINE
set -l program (string split -f1 ' ' -- $argv[2])
source $argv[1]/fish/$program.fish
string replace -r '\t.*' '' -- (complete -C $argv[2]); or true
