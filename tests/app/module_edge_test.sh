#!/bin/sh
# End-to-end run of the console host whose tool palettes module cannot
# start (another library holds one of its class names): every command of the
# module and every option change is told on the command line, and the host
# runs the script to its end.
# Usage: module_edge_test.sh <verdani-console> <library that takes a name>
console="$1"
taker="$2"
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data"
failures=0
fail() {
  echo "FAIL: $1"
  failures=$((failures + 1))
}
expect() { # text
  grep -qF -- "$1" "$home/out.txt" || fail "missing: $1"
}

printf 'ToolPalettes\nToolPalettesList\nToolPalettesSave\n__executetool\nSETDIR\nToolPaletteDir\n%s\nExit\n' \
  "$home/other" | LD_PRELOAD="$taker" "$console" >"$home/out.txt" 2>&1
rc=$?
cat "$home/out.txt"
[ "$rc" -eq 0 ] || fail "exit code $rc"
expect 'The tool palettes module cannot start: class already registered: OdTcCatalogView'
expect 'ToolPalettes failed: the tool palettes module is not started'
expect 'ToolPaletteDir is now'
expect 'Command: Exit'
expect 'The tool palettes module cannot stop: the module is not started'
grep -q 'Command .* failed' "$home/out.txt" && fail "an error of the module reached the host"

[ "$failures" -eq 0 ] && echo "module edge test passed"
[ "$failures" -eq 0 ]
