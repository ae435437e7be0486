#!/bin/sh
# End-to-end run of the console host with the tool palettes module: the
# catalog folders it finds, the tree of a shared catalog with groups, nested
# groups, a palette outside any group and a stub whose file is missing, and
# the user's own catalog, which reaches the disk at the first save.
# Usage: palettes_list_test.sh <verdani-console> <catalog fixture folder>
console="$1"
fixture="$2"
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data"
failures=0
fail() {
  echo "FAIL: $1"
  failures=$((failures + 1))
}

mkdir -p "$home/common/Sample"
cp -r "$fixture" "$home/common/Sample/"
user="$home/data/verdani/ToolPalette"

printf 'ToolPalettesList\nExit\n' | "$console" --set "CommonDirs=$home/common" >"$home/out1.txt" 2>&1
cat "$home/out1.txt"
sed -n '/^Command: ToolPalettesList$/,/^Command: Exit$/p' "$home/out1.txt" | sed '1d;$d' >"$home/list1.txt"
cat >"$home/expected1.txt" <<EOT
paths: $user;$home/common/Sample/ToolPalette;
catalog Sample
  group Main
    palette Walls
    group Nested
      palette Doors
  palette Loose
catalog Tool Palettes default current
EOT
diff -u "$home/expected1.txt" "$home/list1.txt" || fail "the first listing differs"
[ -e "$user/VdTcCatalog.vtc" ] && fail "the user's catalog was written before any save"

printf 'ToolPalettesSave\nExit\n' | "$console" >"$home/out2.txt" 2>&1
[ -e "$user/VdTcCatalog.vtc" ] || fail "the user's catalog was not written by the first save"
# The stub of the missing palette survives the save of the shared catalog.
grep -qF 'Missing.vtc' "$home/common/Sample/ToolPalette/VdTcCatalog.vtc" || fail "the stub of a missing palette was lost"

printf 'ToolPalettesList\nExit\n' | "$console" >"$home/out3.txt" 2>&1
sed -n '/^Command: ToolPalettesList$/,/^Command: Exit$/p' "$home/out3.txt" | sed '1d;$d' >"$home/list3.txt"
diff -u "$home/expected1.txt" "$home/list3.txt" || fail "the listing after a save differs"

[ "$failures" -eq 0 ] && echo "palettes list test passed"
[ "$failures" -eq 0 ]
