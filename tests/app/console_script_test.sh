#!/bin/sh
# End-to-end run of verdani-console on a script, in throw-away user folders:
# the transcript, the exit code, and the configuration kept for the next run.
# Usage: console_script_test.sh <verdani-console> <script>
console="$1"
script="$2"
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data"
failures=0

fail() {
  echo "FAIL: $1"
  failures=$((failures + 1))
}

expect_line() { # text file
  grep -qxF -- "$1" "$2" || fail "missing line: $1"
}

"$console" --set CommonDirs=/srv/common --script "$script" >"$home/out1.txt" 2>&1
rc=$?
cat "$home/out1.txt"
[ "$rc" -eq 0 ] || fail "exit code $rc on a good script"
expect_line 'ToolPaletteDir is now "/tmp/palettes with space".' "$home/out1.txt"
expect_line 'Unknown command "NoSuchCommand".' "$home/out1.txt"
expect_line 'Cannot open the document: /definitely/missing.dxf does not exist; check the name and the folder.' "$home/out1.txt"
expect_line 'New document Drawing2.dxf.' "$home/out1.txt"
expect_line '*Cancel*' "$home/out1.txt"
expect_line 'Command: Exit' "$home/out1.txt"
grep -q 'Drawing3' "$home/out1.txt" && fail "input after Exit ran"
config="$home/config/verdani/config.xml"
grep -qF '/tmp/palettes with space' "$config" || fail "ToolPaletteDir not in $config"
grep -qF '/srv/common' "$config" || fail "--set CommonDirs not in $config"

# A FIFO or a device where a drawing belongs is refused, never waited on.
mkfifo "$home/pipe.dxf"
printf 'OpenDocument\n%s\nOpenDocument\n/dev/zero\nExit\n' "$home/pipe.dxf" |
  timeout 20 "$console" >"$home/out4.txt" 2>&1 || fail "exit code with a FIFO to open"
expect_line "Cannot open the document: $home/pipe.dxf is not a file." "$home/out4.txt"
expect_line 'Cannot open the document: /dev/zero is not a file.' "$home/out4.txt"

# The module beside the console loads by name, and its two commands are
# there.
printf 'ToolPalettes\n__executetool\n\nExit\n' | "$console" >"$home/out2.txt" 2>&1 || fail "exit code with the module"
cat "$home/out2.txt"
grep -qF 'Cannot load module' "$home/out2.txt" && fail "the module did not load"
grep -qF 'Unknown command' "$home/out2.txt" && fail "a command of the module is missing"
expect_line 'Command: Exit' "$home/out2.txt"

# Standard input, a drawing that does not exist, and a bad option.
echo Exit | "$console" "$home/nothing.dxf" >"$home/out3.txt" 2>&1 || fail "exit code with a missing drawing"
grep -qF 'Cannot open the drawing' "$home/out3.txt" || fail "no message for a missing drawing"
grep -qF 'config.xml' "$home/out3.txt" && fail "the configuration of the first run did not read back"
"$console" --bogus </dev/null >"$home/out4.txt" 2>&1
[ $? -eq 2 ] || fail "a bad option must give exit code 2"
grep -qF 'Unknown option --bogus' "$home/out4.txt" || fail "no message for a bad option"

[ "$failures" -eq 0 ] && echo "console script test passed"
[ "$failures" -eq 0 ]
