# Sourced by ./run and ./test: what can be built here, and how.

has_package() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

desktop=ON
if ! has_package qt6-base-dev; then
    desktop=OFF
    echo "Qt is missing (qt6-base-dev): the desktop and the editor program are left out."
fi

tests=ON
if ! has_package libgtest-dev; then
    tests=OFF
    echo "GoogleTest is missing (libgtest-dev): the tests are left out."
fi

# configure PRESET [cmake options...]
configure() {
    local preset=$1
    shift
    cmake --preset "$preset" -DTOBRIK_DESKTOP=$desktop -DTOBRIK_TESTS=$tests "$@" >"build/$preset.log" 2>&1 || {
        cat "build/$preset.log"
        return 1
    }
    grep 'left out' "build/$preset.log" || true
}

# configure_and_build PRESET [cmake options...]
configure_and_build() {
    configure "$@" && cmake --build --preset "$1"
}
