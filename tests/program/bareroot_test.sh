#!/usr/bin/env bash
# Unpacks the archive for Linux into an empty hub on a Debian of its own, which lies in a folder, and starts the program
# there. Wants to be root.
# usage: bareroot_test.sh ARCHIVE ROOT_FOLDER VERSION
set -euo pipefail
archive=$1 root=$2 version=$3 work=$2/home
source "$(dirname "$0")/starts.sh"
export XDG_DATA_HOME=/home/data
start=(chroot "$root" /home/hub/scripts/quillfen)

rm -rf "$work"
mkdir -p "$scripts/Morvaleth's Quillfen" # the folder comes with the hub script
tar -xf "$archive" -C "$scripts"
for tool in cc g++ cmake; do
  [ -z "$(chroot "$root" which $tool)" ] || fail "there is $tool"
done

builds_tree_of_empty_hub
begin "second start asks nothing"
close_main
echo "- check"
"${start[@]}" --check || fail "findings"
echo "the program starts where nothing else is"
