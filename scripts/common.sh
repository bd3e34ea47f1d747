# Shared by run.sh, test.sh and bench.sh: installs what is missing and builds with Ninja.

PACKAGES=(cmake ninja-build g++ qt6-base-dev qt6-multimedia-dev libgl-dev libgtest-dev libgmock-dev
          libbenchmark-dev fonts-dejavu-core xvfb xauth)

ensure_packages() {
    local missing=()
    for p in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -ne 0 ] && sudo=(sudo)
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# build DIR [cmake options...]: configures once, then builds everything.
build() {
    local dir=$1
    shift
    cmake -S "$ROOT" -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir"
}
