#!/usr/bin/env bash
# Unpacks the archive for Windows into a copy of the sample hub, uses the program under Wine on a display of its own, and
# holds the files that it made to those of the program for this system.
# usage: windows_test.sh WINE ARCHIVE PROGRAM SAMPLE_HUB WORK_FOLDER PICTURES VERSION
set -euo pipefail
read -ra wine <<<"$1"
archive=$2 program=$3 sample=$4 work=$5 pictures=$6 version=$7
source "$(dirname "$0")/starts.sh"
most_bytes=15000000
rm -rf "$work"
personal='HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize'

fresh_hub() {
  rm -rf "$work/hub"
  mkdir -p "$work"
  cp -R "$sample" "$work/hub"
}

# Starts the program in the fresh hub, answers its question and saves a form in which one box was ticked off.
use() {
  begin "$1: first start builds the tree"
  press "$version_box" Return
  press "$main_window" ctrl+f g e n e r a l space s e t t i n g s Return
  press "$main_window" space ctrl+s
  close_main
  begin "$1: second start asks nothing"
  close_main
}

imports() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^\tDLL Name: //p' | tr '[:upper:]' '[:lower:]'; }

echo "- the archive holds what the program loads, and nothing else"
[ "$(stat -c %s "$archive")" -lt $most_bytes ] || fail "the archive has $(stat -c %s "$archive") bytes"
fresh_hub
unzip -q "$archive" -d "$scripts"
while read -r file; do
  imports "$file"
done < <(find "$scripts" -name '*.exe' -o -name '*.dll') | sort -u >"$work/imported"
while read -r library; do
  [[ "$library" == api-ms-win-* ]] || # names of Windows' own parts
    [ -e "$WINEPREFIX/drive_c/windows/system32/$library" ] ||
    [ -n "$(find "$scripts" -maxdepth 1 -iname "$library")" ] || fail "$library is missing"
done <"$work/imported"
resources=$(wrestool -l "$scripts/quillfen.exe" | sed -n 's/^--type=\([0-9]*\).*/\1/p' | sort -un | paste -sd ' ')
[ "$resources" = "3 14 16 24" ] || fail "not icons, version and manifest, but resources of the types $resources"
for library in "$scripts"/*.dll; do
  grep -qixF "$(basename "$library")" "$work/imported" || fail "nobody needs $library"
done
for picture in $(grep -o 'pictures/[a-z-]*.png' "$scripts/quillfen-docs/guide.md"); do
  [ -f "$scripts/quillfen-docs/$picture" ] || fail "the guide shows $picture, which isn't there"
done

# What the desktop would open, and the picture that it shows.
mkdir -p "$work/bin" "$pictures"
cat >"$work/bin/xdg-open" <<END
#!/bin/sh
echo "\$1" >>'$work/opened'
END
chmod +x "$work/bin/xdg-open"
export PATH=$work/bin:$PATH
"${wine[@]}" reg add 'HKCR\.html' /ve /d htmlfile /f >/dev/null # as any Windows has it
opens() {
  for _ in $(seq 100); do
    if grep -q "$1" "$work/opened" 2>/dev/null; then return; fi
    sleep 0.1
  done
  fail "nothing opened $1"
}
picture() { import -window "$(await "$main_window")" "$pictures/$1.png"; }
lightness() { convert "$pictures/$1.png" -colorspace gray -format '%[fx:int(100*mean)]' info:; }

start=("${wine[@]}" "$scripts/quillfen.exe")
unset QT_QPA_PLATFORM # that of Windows
use Windows
grep -q "sVersion = \"$version\"," "$tree/General/Globals/Version.tbl" || fail "no version record"
grep -q "bAllowAllPrefixes = 0," "$tree/General/Globals/GeneralSettings.tbl" || fail "the form was not saved"
cp -R "$tree" "$work/windows-tree"

show_forms() {
  press "$main_window" ctrl+f k i c k space s e t Return
  press "$main_window" ctrl+f c l o c k Return
  press "$main_window" ctrl+f n e w space l i n k s Return
  sleep 1
}
begin "light: the guide and the folder open, and a file is chosen in Windows' own dialog"
show_forms
picture windows-light
[ "$(lightness windows-light)" -gt 50 ] || fail "it is dark"
press "$main_window" F1 F1
opens "^file://.*/quillfen-docs/sections/the-archive.html$"
cp "$tree/Language/Commands/Files/DEFAULT.tbl" "$tree/Language/Commands/Files/FRENCH.tbl"
press "$main_window" ctrl+f l a n g u a g e s Return
press "$main_window" shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab space
press "Select Language File to open" F R E N C H period t b l Return
press "$main_window" ctrl+s
press "$main_window" ctrl+f Escape Down Home Menu
sleep 1
xdotool key o
xdotool windowclose "$(await Settings)"
sleep 1
xdotool mousemove --window "$(await "$main_window")" 600 770 click 1 # nobody else gives it the keys back
close_main
grep -q FRENCH "$tree/Language/Commands/CommandLanguages.tbl" || fail "the chosen file was not listed"

"${wine[@]}" reg add "$personal" /v AppsUseLightTheme /t REG_DWORD /d 0 /f >/dev/null
begin "dark where Windows is"
show_forms
picture windows-dark
"${wine[@]}" reg delete "$personal" /v AppsUseLightTheme /f >/dev/null
[ "$(lightness windows-dark)" -lt 30 ] || fail "it is light"
close_main

echo "- check"
check() { "${wine[@]}" "$scripts/$1.exe" "${@:2}" >"$work/check.txt"; }
check quillfen --check || fail "findings: $(cat "$work/check.txt")"
sed -i 's/bFlatRC = 0/bFlatRC = /' "$tree/General/Globals/GeneralSettings.tbl"
for call in "quillfen --check" quillfen-check; do
  result=0
  check $call || result=$?
  [ "$result" -eq 1 ] || fail "$call ended with $result for a broken file"
  grep -q "GeneralSettings.tbl:3: the file won't load" "$work/check.txt" || fail "not told: $(cat "$work/check.txt")"
done

# Wine's server is the one that opens files.
wineserver -k
rm -rf "$tree"
chmod -R a-w "$work/hub"
start=(setpriv --inh-caps=-dac_override --bounding-set=-dac_override "${start[@]}")
begin "a folder without write access is told"
press "$version_box" Return
press "Morvaleth's Quillfen" Return
ends_with 1
wineserver -k
chmod -R u+w "$work/hub"
[ ! -e "$tree" ] || fail "something was written"

fresh_hub
cp "$program" "$scripts/quillfen"
start=("$scripts/quillfen")
export QT_QPA_PLATFORM=xcb
use "this system"
diff -r "$work/windows-tree" "$tree" || fail "the files differ"
echo "$(find "$tree" -type f | wc -l) files, the same on both"

rm -rf "$work"
