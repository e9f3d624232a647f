# shellcheck shell=bash disable=SC2034,SC2154
# The common part of the scripts. Sourced with `root` set to the top folder of the checkout.

# Debian packages to build the program, to run it on a private desktop, and to test it.
build_packages=(ca-certificates g++ cmake ninja-build pkg-config libicu-dev nlohmann-json3-dev libsqlite3-dev
    libsystemd-dev libxcb1-dev libxcb-xkb-dev libxcb-xinput-dev libxcb-xtest0-dev libxkbcommon-dev
    libxkbcommon-x11-dev libcli11-dev qt6-base-dev qt6-declarative-dev qt6-svg-dev qt6-tools-dev qt6-l10n-tools qml6-module-qtquick
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript fonts-inter)
desktop_packages=(at-spi2-core dbus locales xvfb openbox xdotool x11-utils imagemagick fonts-dejavu-core mousepad
    util-linux python3 python3-gi gir1.2-glib-2.0 zsh)
test_packages=(clang-14 clang-tidy-14 clang-format-14 libclang-rt-14-dev libgtest-dev libgmock-dev libbenchmark-dev
    appmenu-registrar libatspi2.0-dev libxcb-damage0-dev libxcb-shm0-dev libxcb-res0-dev featherpad linguist-qt6
    gir1.2-gtk-3.0 gir1.2-gtk-4.0 xterm metacity xfwm4 x11-xkb-utils x11-xserver-utils shellcheck)
# The large applications of the matrix of toolkits.
heavy_packages=(libreoffice-writer libreoffice-gtk3 gimp libatk-adaptor firefox-esr libdbusmenu-gtk3-4 default-jdk
    libatk-wrapper-java-jni)

heading() {
    printf '\n== %s\n' "$*"
}

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Does the same as fail, for invalid arguments.
usage_error() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 2
}

# Installs the missing ones of the named Debian packages.
install_packages() {
    local package missing=()
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    if [ "${#missing[@]}" -eq 0 ]; then
        return
    fi
    if [ "$(id -u)" -ne 0 ]; then
        fail "these packages are missing; as root run: apt-get install ${missing[*]}"
    fi
    heading "Installing ${#missing[@]} Debian packages"
    quietly "$root/build/install.log" apt-get update
    quietly "$root/build/install.log" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
}

# Runs a command with its output in a log file, and shows the end of the log if the command fails.
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    if ! "$@" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        fail "failed: $* (all of its output: $log)"
    fi
}

# Configures a preset and builds its named targets, or all. The preset fuzz is a part of asan.
build_preset() {
    local preset=$1 options=()
    local configured=${preset/fuzz/asan}
    shift
    if command -v ccache >/dev/null; then
        options=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    heading "Building the preset $preset"
    quietly "$root/build/$preset.log" cmake --preset "$configured" "${options[@]}"
    quietly "$root/build/$preset.log" cmake --build --preset "$preset" "$@"
}

# Runs a fuzzer of the sanitized build for the given number of seconds. Useful inputs are kept in the build folder for
# the next run.
fuzz_one() {
    local seconds=$1 fuzzer=$2 name kept log
    name=${fuzzer##*/tovrel_fuzz_}
    kept=$root/build/fuzz/$name
    log=$kept.log
    mkdir -p "$kept"
    if ! LSAN_OPTIONS="suppressions=$root/tests/leaks-of-libraries.txt:print_suppressions=0" "$fuzzer" \
        -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=4096 -print_final_stats=1 \
        -artifact_prefix="$kept.finding-" "$kept" "$root/tests/fuzz/corpus/$name" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        echo "$name has a finding; the input is kept as $kept.finding-* (all of its output: $log)" >&2
        return 1
    fi
    awk -v name="$name" '/stat::number_of_executed_units/ { inputs = $2 } /stat::average_exec_per_sec/ { rate = $2 }
        END { printf "%-16s %9d inputs %7d a second\n", name, inputs, rate }' "$log"
}

# Runs all fuzzers, each for the given number of seconds and one on each processor.
fuzz_all() {
    export root
    export -f fuzz_one
    # shellcheck disable=SC2016 # The inner shell expands its own parameters.
    printf '%s\0' "$root"/build/asan/tests/fuzz/tovrel_fuzz_* |
        xargs -0 -n 1 -P "$(nproc)" bash -c 'fuzz_one "$@"' fuzz "$1" || fail "a fuzzer has a finding"
}
