# For the tests that start the program of a hub: sourced with the hub's parent folder in $work and the program's version
# in $version.

# A display of its own. The server itself picks a free number and tells it, so that tests can run side by side, and
# does not begin anew, refusing the next program, when one has ended.
coproc display { exec Xvfb -displayfd 1 -noreset -screen 0 1400x950x24; }
trap 'kill "$display_PID"' EXIT
read -r number <&"${display[0]}"
export DISPLAY=:$number

export QT_QPA_PLATFORM=xcb
export XDG_DATA_HOME=$work/data
scripts=$work/hub/scripts
start=("$scripts/quillfen") # how the program is called
tree="$scripts/Morvaleth's Quillfen/Settings"
version_box="Morvaleth's Quillfen: Version Change Detected"
main_window="Morvaleth's Quillfen $version"
pid=

fail() {
  echo "FAILED: $*" >&2
  [ -n "$pid" ] && kill "$pid" 2>/dev/null
  exit 1
}

begin() {
  echo "- $*"
  "${start[@]}" &
  pid=$!
}

# The id of the window with exactly this title, once it shows.
await() {
  for _ in $(seq 300); do
    if xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1 | grep . ; then return; fi
    kill -0 "$pid" 2>/dev/null || fail "the program ended before '$1' came"
    sleep 0.1
  done
  fail "no window '$1'"
}

press() { # TITLE KEY...
  local window
  window=$(await "$1")
  shift
  xdotool windowfocus --sync "$window"
  xdotool key --delay 50 "$@"
}

ends_with() {
  local code=0
  wait "$pid" || code=$?
  pid=
  [ "$code" -eq "$1" ] || fail "exit code $code, not $1"
}

close_main() {
  press "$main_window" alt+f c
  ends_with 0
}

# The first start of an unpacked program in a hub without profiles. By group: 14 Customise User, 25 Communication,
# 52 Games, 6 General, 46 Security, 21 User Actions, 18 The Archive.
builds_tree_of_empty_hub() {
  local count
  begin "first start of the unpacked program builds the tree"
  press "$version_box" Return
  close_main
  grep -q "sVersion = \"$version\"," "$tree/General/Globals/Version.tbl" || fail "no version record"
  count=$(find "$tree" -type f | wc -l)
  [ "$count" -eq 182 ] || fail "$count files, not 182"
}
