# Shared by run.sh, test.sh and bench.sh: installs what is missing and builds with Ninja.

# Debian 12's qt6-speech-dev needs qt6-declarative-dev for its CMake package without naming it;
# the accessibility tests switch Qt's accessibility on through qt6-base-private-dev.
PACKAGES=(cmake ninja-build g++ qt6-base-dev qt6-multimedia-dev qt6-speech-dev qt6-declarative-dev
          qt6-base-private-dev libgl-dev libgtest-dev libgmock-dev libbenchmark-dev
          fonts-dejavu-core xvfb xauth xdotool imagemagick python3)

# The libFuzzer programs of fuzz/ need clang; only fuzz.sh and test.sh ask for them.
FUZZ_PACKAGES=(clang-15 libfuzzer-15-dev)

# ensure_packages [PACKAGE...]: the given packages, or the build's own list.
ensure_packages() {
    local wanted=("$@")
    [ $# -gt 0 ] || wanted=("${PACKAGES[@]}")
    local missing=()
    for p in "${wanted[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -ne 0 ] && sudo=(sudo)
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# The fuzz build: core and fuzz/ alone, with clang.
FUZZ_OPTIONS=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++-15 -DSTEWARD_FUZZ=ON)

# build DIR [cmake options...]: configures once, then builds everything.
build() {
    local dir=$1
    shift
    cmake -S "$ROOT" -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir"
}
