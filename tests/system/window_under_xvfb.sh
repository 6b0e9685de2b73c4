#!/usr/bin/env bash
# The real window on a real X server with a window manager, driven from outside: a file on the
# command line is shown, a tab is chosen by its key, the program ends by its key with status 0.
set -euo pipefail
brasklite=$1
sample=$2
work=$(mktemp -d)
children=()
cleanup() {
    kill "${children[@]}" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "$*" >&2
    cat "$work/window.log" >&2 2>/dev/null || true
    exit 1
}
# Repeats a check until it holds; ends when the program it looks at has ended.
until_true() {
    until "$@"; do
        kill -0 "$window" 2>/dev/null || fail "the window ended while waiting for: $*"
    done
}


Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
children+=($!)
until [ -s "$work/display" ]; do kill -0 "${children[0]}" || fail "Xvfb did not start"; done
export DISPLAY=":$(cat "$work/display")"
export XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
openbox >/dev/null 2>&1 &
children+=($!)

"$brasklite" --settings "$work/settings.ini" --root "$work/data" "$sample" \
    >"$work/window.log" 2>&1 &
window=$!
children+=("$window")

name=$(basename "$sample")
shows_file() { xdotool search --onlyvisible --name "File:$name" >"$work/id" 2>/dev/null; }
until_true shows_file
id=$(head -n 1 "$work/id")

# the two curves in their colours: a plot was painted, not only a frame
colours() { import -silent -window "$id" png:- 2>/dev/null | convert png:- -depth 8 -unique-colors txt:- 2>/dev/null; }
painted() { colours >"$work/colours"; grep -q '#00FF00' "$work/colours" && grep -q '#0000FF' "$work/colours"; }
until_true painted

# the grid's cyan rows, after its tab's key
grid_shown() {
    xdotool windowactivate --sync "$id" key --clearmodifiers alt+d
    colours >"$work/colours"
    grep -q '#00FFFF' "$work/colours"
}
until_true grid_shown

xdotool windowactivate --sync "$id" key --clearmodifiers ctrl+q
status=0
wait "$window" || status=$?
[ "$status" -eq 0 ] || fail "the window ended with status $status"
[ -d "$work/data/VEK/From TalvexK42" ] || fail "the data directories were not made"
grep -q '^RecentFiles=.*'"$name" "$work/settings.ini" || fail "the file is not among the recent ones"
