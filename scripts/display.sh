# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# A virtual display of one's own. Sourced by bash.

# Starts one with a free number, points DISPLAY at it, and ends it together with the script.
start_virtual_display() {
  local number_file tries
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
  display_pid=$!
  trap 'kill "$display_pid" 2>/dev/null || true' EXIT
  for ((tries = 0; tries < 200; tries++)); do
    [ -s "$number_file" ] && break
    kill -0 "$display_pid" 2>/dev/null || break
    sleep 0.05
  done
  DISPLAY=:$(cat "$number_file")
  rm -f "$number_file"
  [ "$DISPLAY" != : ] || fail "The virtual display did not start."
  export DISPLAY
  unset WAYLAND_DISPLAY
}
