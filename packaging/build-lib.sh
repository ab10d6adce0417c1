# Sourced by ./run, ./test and the checks: what can be built here, and how.

# leave_out WHY...: says aloud what does not happen here. In continuous integration (CI=true) nothing may be left out.
leave_out() {
    echo "$*"
    [ "${CI:-}" != true ] || {
        echo "FAILED: this is continuous integration (CI=true), where nothing may be left out" >&2
        exit 1
    }
}

has_package() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

desktop=ON
if ! has_package qt6-base-dev; then
    desktop=OFF
    leave_out "Qt is missing (qt6-base-dev): the desktop and the editor program are left out."
fi

tests=ON
if ! has_package libgtest-dev; then
    tests=OFF
    leave_out "GoogleTest is missing (libgtest-dev): the tests are left out."
fi

# configure PRESET [cmake options...]
configure() {
    local preset=$1
    shift
    cmake --preset "$preset" -DTOBRIK_DESKTOP=$desktop -DTOBRIK_TESTS=$tests "$@" >"build/$preset.log" 2>&1 || {
        cat "build/$preset.log"
        return 1
    }
    local left_out
    left_out=$(grep 'left out' "build/$preset.log") && leave_out "$left_out" || true
}

# configure_and_build PRESET [cmake options...]
configure_and_build() {
    configure "$@" && cmake --build --preset "$1"
}

# run_tests PRESET: all of them. What a test could not compare here counts as left out, unless it is for a processor that
# this machine has not.
run_tests() {
    ctest --preset "$1" --no-tests=error -j "$(nproc)" || return
    local said
    said=$(sed -n '/was not compared/p' "build/$1/Testing/Temporary/LastTest.log" | sort -u)
    grep 'this processor' <<<"$said" || true
    said=$(grep -v -e 'this processor' -e '^$' <<<"$said") && leave_out "$said" || true
}
