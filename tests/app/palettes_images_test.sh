#!/bin/sh
# End-to-end run of the console host over pictures and remembered state:
# ToolPalettesImages shows a file picture, a button picture and a missing
# file each as it is; a save writes no file for a button picture and
# deletes none; values of ToolPalettesState survive a restart of the host.
# Usage: palettes_images_test.sh <verdani-console> <catalog fixture folder>
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
# What the Nth command of a run printed, between its line and the next
# command's.
output_of() {
  awk -v n="$2" '/^Command: /{k++; next} k==n' "$1"
}

mkdir -p "$home/common/Pictures"
cp -r "$fixture" "$home/common/Pictures/"
shared="$home/common/Pictures/ToolPalette"
images="$shared/Palettes/Images"
user="$home/data/verdani/ToolPalette"

printf 'ToolPalettesImages\nToolPalettesSave\nToolPalettesImages\nExit\n' |
  "$console" --set "CommonDirs=$home/common" >"$home/out1.txt" 2>&1
cat "$home/out1.txt"
output_of "$home/out1.txt" 1 >"$home/list1.txt"
cat >"$home/expected1.txt" <<EOT
paths: $user;$shared;
catalog Pictures
  image 1 16x16 TEXT loaded
  palette Shapes
    image 1 16x16 $images/Shapes16.png loaded
    image 3 32x32 ACAD_RCDATA_32_LINE loaded
    image 4 64x64 $images/Gone64.png missing
catalog Tool Palettes default current
EOT
diff -u "$home/expected1.txt" "$home/list1.txt" || fail "the listing of pictures differs"

# The save keeps the pictures' files as they were: no file for a button
# picture, none made for the missing one, the real one untouched.
[ "$(ls -A "$images")" = "Shapes16.png" ] || fail "the save changed the Images folder: $(ls -A "$images")"
cmp -s "$fixture/Palettes/Images/Shapes16.png" "$images/Shapes16.png" || fail "the save changed Shapes16.png"
[ -z "$(find "$shared" -name '*.png' ! -path "$images/*")" ] || fail "a picture was written outside the Images folder"
grep -qF 'src="%ProgramBtnRes%" resource="ACAD_RCDATA_32_LINE"' "$shared/Palettes/Shapes.vtc" ||
  fail "the button picture's source was not written back as it was"
grep -qF 'src="acadbtn.xmx" resource="TEXT"' "$shared/VdTcCatalog.vtc" || fail "the catalog's button picture was lost"
output_of "$home/out1.txt" 3 >"$home/list2.txt"
diff -u "$home/expected1.txt" "$home/list2.txt" || fail "the listing after the save differs"

printf 'ToolPalettesState\nActiveView=2\nToolPalettesState\nExpandedItems={A0000000-0000-4000-8000-0000000000C1}|{FFFFFFFF-0000-4000-8000-000000000000}|\nToolPalettesState\nIconSize\nToolPalettesState\nSplitterPos\nExit\n' |
  "$console" >"$home/out3.txt" 2>&1
cat "$home/out3.txt"
grep -qF 'ActiveView = 2 (number)' "$home/out3.txt" || fail "ActiveView was not set"
grep -qF 'IconSize is not remembered.' "$home/out3.txt" || fail "a value never set reads as remembered"
grep -qF 'SplitterPos is not remembered: the window takes 151.' "$home/out3.txt" || fail "the default of SplitterPos is not told"

# A new run of the host reads back what the last one kept, the identifier
# of a catalog that no longer exists included.
printf 'ToolPalettesState\nActiveView\nToolPalettesState\nExpandedItems\nExit\n' | "$console" >"$home/out4.txt" 2>&1
cat "$home/out4.txt"
grep -qF 'ActiveView = 2 (number)' "$home/out4.txt" || fail "ActiveView did not survive a restart"
grep -qF 'ExpandedItems = "{A0000000-0000-4000-8000-0000000000C1}|{FFFFFFFF-0000-4000-8000-000000000000}|" (text)' \
  "$home/out4.txt" || fail "ExpandedItems did not survive a restart as it was"

[ "$failures" -eq 0 ] && echo "palettes images test passed"
[ "$failures" -eq 0 ]
