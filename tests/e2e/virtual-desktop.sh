# Sourced: a virtual display with a window manager, and a designer's hands on it. Everything that is started here ends
# with the script.

export LANG=C.UTF-8 QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME= QT_STYLE_OVERRIDE=Fusion QT_SCALE_FACTOR=1
unset WAYLAND_DISPLAY

scratch=$(mktemp -d)
editor_pid=
display_pids=()

end_virtual_desktop() {
    # The display goes last, after its clients.
    local pid
    for pid in $editor_pid "${display_pids[@]}"; do
        kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap end_virtual_desktop EXIT

# Shows what the editor said, and leaves a picture of the whole display where the session keeps its pictures.
fail() {
    echo "FAILED: $*" >&2
    sed 's/^/the editor: /' "$scratch/editor.log" >&2 2>/dev/null || true
    [ -n "${DISPLAY:-}" ] && [ -d "${pictures:-}" ] && import -silent -window root "$pictures/failure.png" || true
    exit 1
}

# wait_until SECONDS COMMAND...: tries until it succeeds.
wait_until() {
    local tries=$(($1 * 20))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $((tries -= 1)) -gt 0 ] || return 1
        sleep 0.05
    done
}

window_manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

start_virtual_desktop() {
    local tool
    for tool in Xvfb openbox xdotool import xprop; do
        command -v "$tool" >/dev/null || fail "$tool is missing"
    done
    export XDG_RUNTIME_DIR=$scratch/runtime
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    # Without -noreset the server starts anew, and turns clients away, whenever its last client leaves.
    Xvfb -displayfd 7 -screen 0 1280x800x24 -nolisten tcp -noreset 7>"$scratch/display" 2>/dev/null &
    display_pids+=($!)
    wait_until 10 test -s "$scratch/display" || fail "the virtual display did not start"
    export DISPLAY=:$(<"$scratch/display")
    openbox --config-file /dev/null >/dev/null 2>&1 &
    display_pids=($! "${display_pids[@]}")
    wait_until 10 window_manager_runs || fail "the window manager did not start"
}

# start_editor PROGRAM: in the current folder; its window's id is then in $window.
start_editor() {
    "$1" 2>"$scratch/editor.log" &
    editor_pid=$!
    wait_until 20 xdotool search --onlyvisible --name '^編輯畫面輔助器$' || fail "the editor's window did not appear"
    window=$(xdotool search --onlyvisible --name '^編輯畫面輔助器$' | head -n 1)
    xdotool windowactivate --sync "$window" 2>/dev/null || true
    sleep 0.5
}

# The exit status of an editor that ends by itself is then in $exit_status.
wait_for_end() {
    wait_until 10 eval "! kill -0 $editor_pid" || fail "the editor did not end"
    exit_status=0
    wait "$editor_pid" || exit_status=$?
    editor_pid=
}

# Two idle turns of the editor: what was done is then on the screen.
settle() { sleep 0.35; }

# Points are client coordinates of the editor's window.
move_to() { xdotool mousemove --window "$window" "$1" "$2"; }
click() { move_to "$1" "$2" && xdotool click "${3:-1}"; }
press_key() { xdotool key --clearmodifiers "$@"; }

# command_button NAME: presses one of the buttons in the strip.
command_button() {
    local -A row=([picture]=0 [button]=1 [animation]=2 [word]=3 [checkbox]=4 [selectbox]=5 [load]=6 [save]=7 [new]=8)
    click 900 $((row[$1] * 30 + 15))
}

# drag X1 Y1 X2 Y2: in four steps, as a hand moves. The editor may see moves that come close together as one, so it has
# time before the last: a rubber band reaches as far as the pointer was a move ago.
drag() {
    local step
    move_to "$1" "$2"
    xdotool mousedown 1
    for step in 1 2 3 4; do
        [ $step -lt 4 ] || settle
        move_to $(($1 + ($3 - $1) * step / 4)) $(($2 + ($4 - $2) * step / 4))
    done
    xdotool mouseup 1
    settle
}

# A visible window of the editor beside the main one (a dialog, a message box), the newest; its id is then in
# $other_window.
find_other_window() {
    other_window=$(xdotool search --onlyvisible --pid "$editor_pid" --name '.' 2>/dev/null | grep -vx "$window" | tail -n 1)
    [ -n "$other_window" ]
}
other_window_titled() { find_other_window && [ "$(xdotool getwindowname "$other_window")" = "$1" ]; }
wait_for_window_titled() { wait_until 10 other_window_titled "$1" && find_other_window && sleep 0.2 || fail "no window \"$1\" came"; }
no_other_window() { ! find_other_window; }
wait_for_main_window() { wait_until 10 no_other_window || fail "a window stayed open"; settle; }

# choose_file PATH: types it into the open file dialog and confirms.
choose_file() {
    wait_until 10 find_other_window || fail "the file dialog did not open"
    find_other_window
    sleep 0.3
    xdotool type --delay 5 "$1"
    xdotool key Return
    sleep 0.3
}

# dialog_click X Y: in the dialog, in dialog units (2 by 2 pixels each).
dialog_click() {
    xdotool mousemove --window "$other_window" $(($1 * 2)) $(($2 * 2)) click 1
    sleep 0.1
}
# fill_field X Y TEXT: replaces what the field there holds, by pasting.
fill_field() {
    dialog_click "$1" "$2"
    printf '%s' "$3" | xclip -selection clipboard 2>/dev/null
    xdotool key ctrl+a key ctrl+v
    sleep 0.2
}
# choose_item X Y N: the N-th entry (from 0) of the drop-down there.
choose_item() {
    dialog_click "$1" "$2"
    xdotool key alt+Down
    sleep 0.2
    xdotool key Home
    local step
    for ((step = 0; step < $3; step++)); do xdotool key Down; done
    xdotool key Return
    sleep 0.2
}

# menu_choose X Y N: opens the context menu there and takes the N-th item (from 1).
menu_choose() {
    click "$1" "$2" 3
    sleep 0.3
    local step
    for ((step = 0; step < $3; step++)); do xdotool key Down; done
    xdotool key Return
    settle
}

# pixel X Y: the colour of the window there, as RRGGBB.
pixel() { colours "$1" "$2" 1 1 | tail -n 1; }
# colours X Y WIDTH HEIGHT: of each pixel of the rectangle, row by row.
colours() {
    import -silent -window "$window" -crop "$3x$4+$1+$2" +repage -depth 8 txt:- | grep -oE '#[0-9A-F]{6}' | tr -d '#'
}
# count_colour RRGGBB X Y WIDTH HEIGHT
count_colour() {
    local colour=$1
    shift
    colours "$@" | grep -cx "$colour" || true
}
# look X Y WIDTH HEIGHT: a fingerprint of the rectangle.
look() { colours "$@" | md5sum; }
screenshot() { import -silent -window "${2:-$window}" "$1"; }

expect() { # expect WHAT ACTUAL EXPECTED
    [ "$2" = "$3" ] || fail "$1: $2 instead of $3"
}
expect_other() { # expect_other WHAT ACTUAL BEFORE
    [ "$2" != "$3" ] || fail "$1: nothing has changed"
}
# The red outline of a selected object at X Y of this size.
expect_outline() {
    local corner
    for corner in "$1 $2" "$(($1 + $3 - 1)) $(($2 + $4 - 1))"; do
        expect "the outline at $corner" "$(pixel $corner)" FF0000
    done
}
