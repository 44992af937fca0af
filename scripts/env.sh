# Shared by the project's commands: installs what is missing, configures and
# builds, and provides a display and a Wine prefix for running the programs.
# Source it; it defines the functions below and changes nothing by itself.

ORU_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
ORU_BUILD=${ORU_BUILD:-$ORU_ROOT/build}
ORU_PACKAGES="cmake ninja-build python3 g++-mingw-w64-x86-64-posix clang wine64 xvfb xauth googletest libgl1 libgl1-mesa-dri libglx-mesa0 nlohmann-json3-dev libcli11-dev libstb-dev"

oru_log() { printf '==> %s\n' "$*" >&2; }

# Installs the Debian packages that are missing (needs root, as on CI).
oru_install() {
    local missing=""
    for package in $ORU_PACKAGES; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing="$missing $package"
    done
    if [ -n "$missing" ]; then
        oru_log "installing:$missing"
        local sudo=""
        [ "$(id -u)" -eq 0 ] || sudo="sudo"
        $sudo apt-get update -qq
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null
    fi
}

oru_configure() {
    if [ ! -f "$ORU_BUILD/CMakeCache.txt" ]; then
        oru_log "configuring $ORU_BUILD"
        cmake -S "$ORU_ROOT" -B "$ORU_BUILD" -G Ninja \
            -DCMAKE_TOOLCHAIN_FILE="$ORU_ROOT/cmake/mingw-w64-x86_64-posix.cmake" \
            -DCMAKE_BUILD_TYPE=Release >/dev/null
    fi
}

oru_build() {
    oru_configure
    oru_log "building"
    cmake --build "$ORU_BUILD" -- -k 0 | grep -vE '^\[[0-9]+/[0-9]+\]' || true
    cmake --build "$ORU_BUILD" >/dev/null
}

# The second compiler: Clang with MinGW-w64's headers and GCC's runtime, in
# build-clang/, where any compiler or linker warning fails the build.
oru_build_clang() {
    local build="$ORU_ROOT/build-clang" log
    log=$(mktemp)
    if [ ! -f "$build/CMakeCache.txt" ]; then
        oru_log "configuring $build"
        cmake -S "$ORU_ROOT" -B "$build" -G Ninja \
            -DCMAKE_TOOLCHAIN_FILE="$ORU_ROOT/cmake/clang-mingw-w64-x86_64.cmake" \
            -DCMAKE_BUILD_TYPE=Release -DORU_WARNINGS_AS_ERRORS=ON >"$log" 2>&1 || true
    fi
    oru_log "building with Clang"
    if ! cmake --build "$build" >>"$log" 2>&1 || grep -qi 'warning' "$log"; then
        grep -iE -A3 'warning|error' "$log" >&2 || tail -n 40 "$log" >&2
        rm -f "$log"
        oru_log "the Clang build failed or warned"
        return 1
    fi
    rm -f "$log"
}

oru_wine64() {
    command -v wine64 2>/dev/null || ls /usr/lib/wine/wine64 2>/dev/null
}

# Starts Xvfb on a free display and a quiet Wine prefix inside the build tree;
# both are stopped when the calling shell exits.
oru_start_display() {
    local display_file
    display_file=$(mktemp)
    Xvfb -displayfd 9 -screen 0 1280x1024x24 -nolisten tcp 9>"$display_file" 2>/dev/null &
    ORU_XVFB_PID=$!
    for _ in $(seq 100); do
        [ -s "$display_file" ] && break
        sleep 0.1
    done
    export DISPLAY=":$(cat "$display_file")"
    rm -f "$display_file"
    trap oru_stop_display EXIT

    export WINEPREFIX="$ORU_BUILD/wineprefix"
    export WINEDEBUG=-all
    export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
    export WINEARCH=win64
    if [ ! -f "$WINEPREFIX/system.reg" ]; then
        oru_log "creating the Wine prefix"
        "$(oru_wine64)" wineboot -i >/dev/null 2>&1
    fi
    # One wine server and one set of Wine's background services for all the
    # programs, rather than a start-up per program. The services are started here
    # with no terminal or pipe of ours, so that none of them holds a test's output.
    oru_wineserver -p >/dev/null 2>&1 || true
    "$(oru_wine64)" wineboot </dev/null >/dev/null 2>&1 || true
}

oru_wineserver() {
    if command -v wineserver >/dev/null 2>&1; then wineserver "$@"; else /usr/lib/wine/wineserver "$@"; fi
}

oru_stop_display() {
    oru_wineserver -k >/dev/null 2>&1 || true
    [ -n "${ORU_XVFB_PID:-}" ] && kill "$ORU_XVFB_PID" 2>/dev/null
    wait 2>/dev/null || true
}
