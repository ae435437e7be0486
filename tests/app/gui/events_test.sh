#!/bin/sh
# The desktop program played by a script of user events, in throw-away user
# folders; every check of the script must pass and the window must close.
# Usage: events_test.sh <verdani> <events file>
verdani="$1"
events="$2"
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data"
cd "$home" || exit 1
timeout 120 "$verdani" --events "$events"
rc=$?
[ "$rc" -eq 0 ] || { echo "FAIL: verdani ended with $rc"; exit 1; }
[ -s line_undo_redo.png ] || { echo "FAIL: no screenshot"; exit 1; }
echo "events played"
