# Sourced: a virtual display with a window manager, and a designer's hands on it. Everything that is started here ends
# with the script.

export LANG=C.UTF-8 QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME= QT_STYLE_OVERRIDE=Fusion QT_SCALE_FACTOR=1
unset WAYLAND_DISPLAY

scratch=$(mktemp -d)
editor_pid=
display_pids=()

end_virtual_desktop() {
    [ -n "$editor_pid" ] && kill "$editor_pid" 2>/dev/null
    [ ${#display_pids[@]} -gt 0 ] && kill "${display_pids[@]}" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$scratch"
}
trap end_virtual_desktop EXIT

fail() {
    echo "FAILED: $*" >&2
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

start_virtual_desktop() {
    local tool
    for tool in Xvfb openbox xdotool import xprop; do
        command -v "$tool" >/dev/null || fail "$tool is missing"
    done
    export XDG_RUNTIME_DIR=$scratch/runtime
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    Xvfb -displayfd 7 -screen 0 1280x800x24 -nolisten tcp 7>"$scratch/display" 2>/dev/null &
    display_pids+=($!)
    wait_until 10 test -s "$scratch/display" || fail "the virtual display did not start"
    export DISPLAY=:$(<"$scratch/display")
    openbox --config-file /dev/null >/dev/null 2>&1 &
    display_pids+=($!)
    wait_until 10 xprop -root _NET_SUPPORTING_WM_CHECK || fail "the window manager did not start"
}

# start_editor PROGRAM: in the current folder; its window's id is then in $window.
start_editor() {
    "$1" 2>"$scratch/editor.log" &
    editor_pid=$!
    wait_until 20 xdotool search --onlyvisible --name '^編輯畫面輔助器$' || fail "the editor's window did not appear"
    window=$(xdotool search --onlyvisible --name '^編輯畫面輔助器$' | head -n 1)
    xdotool windowactivate --sync "$window"
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

# drag X1 Y1 X2 Y2: in steps, as a hand moves.
drag() {
    local step
    move_to "$1" "$2"
    xdotool mousedown 1
    for step in 1 2 3 4; do
        move_to $(($1 + ($3 - $1) * step / 4)) $(($2 + ($4 - $2) * step / 4))
        sleep 0.05
    done
    xdotool mouseup 1
    settle
}

# other_window: a visible window of the editor beside the main one (a dialog, a message box).
find_other_window() {
    other_window=$(xdotool search --onlyvisible --pid "$editor_pid" --name '.' | grep -vx "$window" | tail -n 1)
    [ -n "$other_window" ]
}
wait_for_other_window() { wait_until 10 find_other_window && find_other_window && sleep 0.3; }
wait_for_main_window() { wait_until 10 eval '! find_other_window' || fail "a window stayed open"; settle; }

# choose_file PATH: types it into the open file dialog and confirms.
choose_file() {
    wait_for_other_window || fail "the file dialog did not open"
    xdotool type --delay 5 "$1"
    xdotool key Return
    sleep 0.3
}

# pixel X Y: the colour of the window there, as RRGGBB.
pixel() {
    import -silent -window "$window" -crop "1x1+$1+$2" +repage -depth 8 txt:- | grep -oE '#[0-9A-F]{6}' | tail -n 1 \
        | tr -d '#'
}
screenshot() { import -silent -window "${2:-$window}" "$1"; }
