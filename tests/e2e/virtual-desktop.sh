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
    xdotool mousemove 1279 799 # beside the window: the editor hears nothing of the pointer yet
    "$1" 2>"$scratch/editor.log" &
    editor_pid=$!
    wait_until 20 xdotool search --onlyvisible --name '^編輯畫面輔助器$' || fail "the editor's window did not appear"
    window=$(xdotool search --onlyvisible --name '^編輯畫面輔助器$' | head -n 1)
    wait_until 20 active "$window" || fail "the editor's window did not become the active one"
    wait_until 20 panel_has_text || fail "the editor's window stayed empty"
    line_at_home=$(pointer_line)
}

# The exit status of an editor that ends by itself is then in $exit_status.
wait_for_end() {
    wait_until 10 eval "! kill -0 $editor_pid" || fail "the editor did not end"
    exit_status=0
    wait "$editor_pid" || exit_status=$?
    editor_pid=
}

# The line of the status panel that says where the editor has seen the pointer. Each frame renews panel and canvas
# together. An editor that has heard of no pointer yet says (0, 0), and $line_at_home is what that looks like.
pointer_line() { look 800 400 200 20; }
panel_has_text() {
    local white
    white=$(count_colour FFFFFF 800 400 200 20) && ((white > 2000 && white < 4000))
}
line_differs() { [ "$(pointer_line)" != "$1" ]; }
line_is() { [ "$(pointer_line)" = "$1" ]; }
# after_move X Y CONDITION...: takes the pointer there and looks. In a window that is just being unblocked the editor
# drops what the mouse does, so it is told again now and then.
after_move() {
    [ $((looks++ % 20)) -ne 0 ] || xdotool mousemove --window "$window" "$1" 5 mousemove --window "$window" "$1" "$2"
    "${@:3}"
}

# Takes the pointer to the canvas's corner and back, without a button held, and waits until the editor shows each: it
# hears of things in their order, so what was done before is then on the screen.
settle() {
    local X Y SCREEN WINDOW WIDTH HEIGHT x y looks
    eval "$(xdotool getmouselocation --shell)"
    x=$X y=$Y looks=0
    wait_until 20 after_move 9 0 line_differs "$line_at_home" || fail "the editor does not follow the pointer"
    looks=0
    wait_until 20 after_move 0 0 line_is "$line_at_home" || fail "the editor does not follow the pointer to the corner"
    xdotool mousemove "$x" "$y"
    eval "$(xdotool getwindowgeometry --shell "$window")"
    # Elsewhere lie the buttons, over which the editor hears nothing.
    if ((x >= X && x < X + 800 && y >= Y && y < Y + 600 && (x > X || y > Y))); then
        wait_until 20 line_differs "$line_at_home" || fail "the editor does not follow the pointer back"
    fi
}

# Points are client coordinates of the editor's window.
move_to() { xdotool mousemove --window "$window" "$1" "$2"; }
click() { move_to "$1" "$2" && xdotool click "${3:-1}"; }
press_key() { xdotool key --clearmodifiers "$@"; }

# command_button NAME: presses one of the buttons in the strip.
command_button() {
    local -A row=([picture]=0 [button]=1 [animation]=2 [word]=3 [checkbox]=4 [selectbox]=5 [load]=6 [save]=7 [new]=8)
    click 900 $((row[$1] * 30 + 15))
}

# drag X1 Y1 X2 Y2: in four steps, as a hand moves. The editor sees each before the next, since it may take moves that
# come close together for one, and a rubber band reaches as far as the pointer was a move ago.
drag() {
    local step line
    move_to "$1" "$2"
    settle
    xdotool mousedown 1
    for step in 1 2 3 4; do
        line=$(pointer_line)
        move_to $(($1 + ($3 - $1) * step / 4)) $(($2 + ($4 - $2) * step / 4))
        wait_until 20 line_differs "$line" || fail "the editor does not follow the drag"
    done
    xdotool mouseup 1
    settle
}

active() { [ "$(xdotool getactivewindow)" = "$1" ]; }
# The ids of the editor's windows that can be seen, menus and lists that drop down among them.
windows() { xdotool search --onlyvisible --pid "$editor_pid" 2>/dev/null | sort; }
# A window that is not among WINDOWS; its id is then in $popup.
find_popup() { popup=$(windows | comm -13 <(echo "$1") - | tail -n 1) && [ -n "$popup" ]; }
wait_for_popup() { wait_until 20 find_popup "$1" || fail "no menu and no list opened"; }
is_gone() { ! windows | grep -x "$1"; }
wait_for_closing() { wait_until 20 is_gone "$1" || fail "a window stayed open"; }

# A visible window of the editor beside the main one (a dialog, a message box), the newest; its id is then in
# $other_window.
find_other_window() {
    other_window=$(xdotool search --onlyvisible --pid "$editor_pid" --name '.' 2>/dev/null | grep -vx "$window" | tail -n 1)
    [ -n "$other_window" ]
}
other_window_is_active() { find_other_window && active "$other_window"; }
other_window_titled() { other_window_is_active && [ "$(xdotool getwindowname "$other_window")" = "$1" ]; }
wait_for_window_titled() { wait_until 20 other_window_titled "$1" || fail "no window \"$1\" came"; }
only_main_window() { ! find_other_window && active "$window"; }
wait_for_main_window() { wait_until 20 only_main_window || fail "a window stayed open"; settle; }

# choose_file PATH: types it into the open file dialog and confirms.
choose_file() {
    wait_until 20 other_window_is_active || fail "the file dialog did not open"
    xdotool type --delay 5 "$1"
    xdotool key Return
    wait_for_closing "$other_window"
}

# dialog_click X Y: in the dialog, in dialog units (2 by 2 pixels each).
dialog_click() { xdotool mousemove --window "$other_window" $(($1 * 2)) $(($2 * 2)) click 1; }
# The clipboard of the editor says more about its text than xclip's.
clipboard_is_editors() { xclip -selection clipboard -o -t TARGETS | grep -x text/plain; }
clipboard_holds() { [ "$(xclip -selection clipboard -o)" = "$1" ]; }
is_copied_outside() { ! clipboard_is_editors && clipboard_holds "$1"; }
is_copied_by_editor() { clipboard_is_editors && clipboard_holds "$1"; }
# fill_field X Y TEXT [HELD]: replaces what the field there holds, by pasting, and sees by copying that it holds the text,
# or what it holds on to when it refuses the text.
fill_field() {
    dialog_click "$1" "$2"
    printf '%s' "$3" | xclip -selection clipboard 2>/dev/null
    wait_until 20 is_copied_outside "$3" || fail "\"$3\" is not on the clipboard"
    xdotool key ctrl+a key ctrl+v key ctrl+a key ctrl+c key End
    wait_until 20 is_copied_by_editor "${4:-$3}" || fail "the field does not hold \"${4:-$3}\""
}
# choose_item X Y N: the N-th entry (from 0) of the drop-down there.
choose_item() {
    local step before
    before=$(windows)
    dialog_click "$1" "$2"
    xdotool key alt+Down
    wait_for_popup "$before"
    xdotool key Home
    for ((step = 0; step < $3; step++)); do xdotool key Down; done
    xdotool key Return
    wait_for_closing "$popup"
}

# menu_choose X Y N: opens the context menu there and takes the N-th item (from 1). Twice in a row at the same
# point may be a double click, which opens none.
menu_choose() {
    local step before
    before=$(windows)
    click "$1" "$2" 3
    wait_for_popup "$before"
    for ((step = 0; step < $3; step++)); do xdotool key Down; done
    xdotool key Return
    wait_for_closing "$popup"
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
now() { [ "$("${@:2}")" = "$1" ]; } # now VALUE COMMAND...
now_other() { # now_other VALUE COMMAND...
    local got
    got=$("${@:2}") && [ "$got" != "$1" ]
}
expect_soon() { # expect_soon WHAT EXPECTED COMMAND...
    wait_until 20 now "${@:2}" || fail "$1: $("${@:3}") instead of $2"
}
expect_soon_other() { # expect_soon_other WHAT BEFORE COMMAND...
    wait_until 20 now_other "${@:2}" || fail "$1: nothing has changed"
}
# The red outline of a selected object at X Y of this size.
expect_outline() {
    local corner
    for corner in "$1 $2" "$(($1 + $3 - 1)) $(($2 + $4 - 1))"; do
        expect_soon "the outline at $corner" FF0000 pixel $corner
    done
}
