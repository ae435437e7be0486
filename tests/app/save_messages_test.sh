#!/bin/sh
# End-to-end run of the console host whose catalogs cannot all be written:
# one catalog folder turns read-only and another catalog's file turns into a
# folder while the host runs. ToolPalettesSave says which catalog was saved
# and which was not, and never "Catalogs saved."; nothing is written.
# The super-user writes through file modes, so as root the host runs as an
# unprivileged user.
# Usage: save_messages_test.sh <verdani-console> <catalog fixture folder>
console="$1"
fixture="$2"
home=$(mktemp -d) || exit 1
trap 'chmod -R u+w "$home"; rm -rf "$home"' EXIT
failures=0
fail() {
  echo "FAIL: $1"
  failures=$((failures + 1))
}
expect() { # text
  grep -qF -- "$1" "$home/out.txt" || fail "missing: $1"
}

for name in Kept ReadOnly Folder; do
  mkdir -p "$home/common/$name"
  cp -r "$fixture" "$home/common/$name/"
done
run="env HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data"
if [ "$(id -u)" -eq 0 ]; then
  chown -R 65534:65534 "$home"
  run="setpriv --reuid=65534 --regid=65534 --clear-groups $run"
fi

mkfifo "$home/in"
$run "$console" --set "CommonDirs=$home/common" <"$home/in" >"$home/out.txt" 2>&1 &
host=$!
exec 3>"$home/in"
printf 'ToolPalettesList\n' >&3
# The listing first, with every catalog loaded; then the folders change.
tries=0
until grep -q 'default current' "$home/out.txt" || [ $tries -ge 100 ]; do
  sleep 0.1
  tries=$((tries + 1))
done
readOnly="$home/common/ReadOnly/ToolPalette"
folder="$home/common/Folder/ToolPalette/VdTcCatalog.vtc"
before=$(cat "$readOnly/VdTcCatalog.vtc")
chmod a-w "$readOnly"
rm "$folder" && mkdir "$folder"
printf 'ToolPalettesSave\nExit\n' >&3
exec 3>&-
wait $host
rc=$?
cat "$home/out.txt"
[ "$rc" -eq 0 ] || fail "exit code $rc"
expect "Saved the catalog \"Sample\" to $home/common/Kept/ToolPalette/VdTcCatalog.vtc."
expect "The catalog \"Sample\" was not saved to $readOnly/VdTcCatalog.vtc."
expect "Cannot save the catalog \"Sample\" to $readOnly/VdTcCatalog.vtc: "
expect "The catalog \"Sample\" was not saved to $folder."
expect "2 of 4 catalogs could not be saved."
grep -qF 'Catalogs saved.' "$home/out.txt" && fail "the save said every catalog was saved"
[ "$before" = "$(cat "$readOnly/VdTcCatalog.vtc")" ] || fail "the read-only catalog changed"
[ -d "$folder" ] || fail "the folder in the catalog's place was touched"
ls -A "$readOnly" | grep -q '^\.odsafe' && fail "a temporary file was left"

[ "$failures" -eq 0 ] && echo "save messages test passed"
[ "$failures" -eq 0 ]
