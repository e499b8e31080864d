#!/usr/bin/env bash
# Makes the archive, unpacks it into an empty hub, and starts the program that comes out.
# usage: package_test.sh CPACK CONFIG WORK_FOLDER VERSION
set -euo pipefail
cpack=$1 config=$2 work=$3 version=$4
source "$(dirname "$0")/starts.sh"

rm -rf "$work"
mkdir -p "$work/archive" "$scripts/Morvaleth's Quillfen" # the folder comes with the hub script
"$cpack" --config "$config" -B "$work/archive" >"$work/cpack.log" || fail "no archive: $(cat "$work/cpack.log")"
tar -xf "$work"/archive/quillfen-*.tar.gz -C "$scripts"

[ "$(LC_ALL=C ls -A "$scripts")" = "Morvaleth's Quillfen
quillfen
quillfen-docs" ] || fail "the archive litters the folder: $(ls -A "$scripts")"
[ -z "$(ls -A "$scripts/Morvaleth's Quillfen")" ] || fail "the archive brings something for the script's own folder"
[ -f "$scripts/quillfen-docs/LICENSE" ] || fail "no licence"
for picture in $(grep -o 'pictures/[a-z-]*.png' "$scripts/quillfen-docs/guide.md"); do
  [ -f "$scripts/quillfen-docs/$picture" ] || fail "the guide shows $picture, which isn't there"
done

for section in general the-archive; do
  [ -f "$scripts/quillfen-docs/sections/$section.html" ] || fail "no page of the guide for $section"
done
[ -f "$scripts/quillfen-docs/guide.html" ] || fail "no page of the guide"

builds_tree_of_empty_hub

rm -rf "$work"
echo "the package starts as it should"
