# Sourced by ./run and ./test: what can be built here, and how.

has_package() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

desktop=ON
if ! has_package qt6-base-dev; then
    desktop=OFF
    echo "Qt is missing (qt6-base-dev): the desktop and the editor program are left out."
fi

# configure_and_build PRESET [cmake options...]
configure_and_build() {
    local preset=$1
    shift
    cmake --preset "$preset" -DTOBRIK_DESKTOP=$desktop "$@" >"build/$preset.log" 2>&1 || {
        cat "build/$preset.log"
        return 1
    }
    grep 'left out' "build/$preset.log" || true
    cmake --build --preset "$preset"
}
