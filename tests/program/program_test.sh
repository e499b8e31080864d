#!/usr/bin/env bash
# Starts the built program in a copy of the sample hub, on a display of its own, and answers its boxes by keyboard.
# usage: program_test.sh PROGRAM SAMPLE_HUB WORK_FOLDER VERSION
set -euo pipefail
program=$1 sample=$2 work=$3 version=$4
source "$(dirname "$0")/starts.sh"
profile_box="Morvaleth's Quillfen: PtokaX Profile Change Detected"

fresh_hub() {
  rm -rf "$work/hub"
  mkdir -p "$work"
  cp -R "$sample" "$work/hub"
  cp "$program" "$scripts/quillfen"
}

state() { (cd "$work/hub" && find . -type f ! -name quillfen -exec md5sum {} + | sort -k 2; find . -type d | sort); }

rm -rf "$work/data"
fresh_hub
begin "first start builds the tree"
press "$version_box" Return
close_main
grep -q "sVersion = \"$version\"," "$tree/General/Globals/Version.tbl" || fail "no version record"
[ -f "$tree/General/Globals/GeneralSettings.tbl" ] || fail "no settings"
[ -d "$tree/TheArchive/Hyperlink" ] || fail "no archive folder"
[ -d "$scripts/Morvaleth's Scripts/News" ] || fail "no news folder"
[ "$(head -c 2 "$tree/General/PtokaX/Profiles.xml" | od -An -tx1 | tr -d ' ')" = 0d0a ] || fail "no profile copy"

before=$(state)
begin "second start asks nothing and changes nothing"
close_main
[ "$(state)" = "$before" ] || fail "the second start changed something"

sed -i 's/bFlatRC = 0/bFlatRC = 1/' "$tree/General/Globals/GeneralSettings.tbl"
sed -i "s/$version/5.1.9/" "$tree/General/Globals/Version.tbl"
before=$(state)
echo left > "$tree/General/.quillfen-1-2.aside" # by a crash
begin "refused version change ends the program and changes nothing"
press "$version_box" Escape
ends_with 0
[ "$(state)" = "$before" ] || fail "the refusal changed something, or what a crash left was not swept up"

begin "version change rebuilds and keeps what was set"
press "$version_box" Return
close_main
grep -q "bFlatRC = 1," "$tree/General/Globals/GeneralSettings.tbl" || fail "a setting was lost"
grep -q "sVersion = \"$version\"," "$tree/General/Globals/Version.tbl" || fail "no version record"
data=$(echo "$work"/data/quillfen/hubs/hub-*)
grep -q "^cause Rebuild from 5.1.9$" "$data"/versions/entries/* || fail "what the rebuild replaced was not kept"
[ "$(stat -c %a "$data")" = 700 ] || fail "others may read the hub's data"

echo "- check without a display"
check() { env -u DISPLAY QT_QPA_PLATFORM= "$scripts/quillfen" --check "$@" >"$work/check.txt" 2>&1; }
before=$(state)
check || fail "a tree that is well has findings: $(cat "$work/check.txt")"
[ ! -s "$work/check.txt" ] || fail "it said something: $(cat "$work/check.txt")"
sed -i 's/bFlatRC = 1/bFlatRC = /' "$tree/General/Globals/GeneralSettings.tbl"
result=0
check "$tree" || result=$?
[ "$result" -eq 1 ] || fail "it ended with $result for a broken file"
grep -q "^$tree/General/Globals/GeneralSettings.tbl:6: the file won't load: there is no value. Enter one.$" "$work/check.txt" ||
  fail "not told: $(cat "$work/check.txt")"
sed -i 's/bFlatRC = /bFlatRC = 1/' "$tree/General/Globals/GeneralSettings.tbl"
[ "$(state)" = "$before" ] || fail "the check changed something"
result=0
check "$work/nowhere" || result=$?
[ "$result" -eq 2 ] || fail "it ended with $result where there is no tree"

sed -i 's|^</Profiles>|<Profile>\r\n<Name>Guest</Name>\r\n</Profile>\r\n</Profiles>|' "$work/hub/cfg/Profiles.xml"
echo left > "$tree/General/.quillfen-1-2.aside"
begin "more profiles rebuild"
press "$profile_box" Return
await "$main_window" >/dev/null
for _ in $(seq 50); do [ -e "$tree/General/.quillfen-1-2.aside" ] || break; sleep 0.1; done
[ ! -e "$tree/General/.quillfen-1-2.aside" ] || fail "what a crash left was not swept up behind the window"
close_main
grep -q "<Name>Guest</Name>" "$tree/General/PtokaX/Profiles.xml" || fail "the profile copy is old"

fresh_hub
rm -rf "$scripts/Morvaleth's Quillfen"
before=$(state)
begin "missing script folder is told, and nothing is touched"
press "Morvaleth's Quillfen" Return
ends_with 1
[ "$(state)" = "$before" ] || fail "something was made in a folder without the script"

fresh_hub
mkdir -p "$tree/General/Globals/GeneralSettings.tbl"
begin "folder in a file's place is told"
press "$version_box" Return
press "Morvaleth's Quillfen" Return
ends_with 1
[ ! -e "$tree/General/Globals/Switches.tbl" ] || fail "the build went on"

fresh_hub
mkdir -p "$tree/General/Globals"
ln -s /dev/full "$tree/General/Globals/Version.tbl"
begin "full disk is told"
press "$version_box" Return
press "Morvaleth's Quillfen" Return
ends_with 1
[ ! -e "$tree/General/PtokaX/Profiles.xml" ] || fail "the start went on"

rm -rf "$work/hub" "$work/data"
echo "all starts went as they should"
