# SPDX-License-Identifier: GPL-2.0-or-later

# Shared by ./run and ./test; to be sourced by bash, from the top folder of the project.
# A command that fails ends the script with the name of the step that it was part of.

set -Eeuo pipefail

# Debian packages. To make the translations part of the programs, and to bring them up to date:
TRANSLATION_PACKAGES=(qt6-l10n-tools)
# To build the program and to open its window:
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgl-dev libcli11-dev libhwy-dev libxxhash-dev libzip-dev libzstd-dev zlib1g-dev pkgconf "${TRANSLATION_PACKAGES[@]}")
WINDOW_PACKAGES=(qt6-qpa-plugins qt6-wayland qt6-translations-l10n fonts-dejavu-core)
# To build and run the tests, and to check format and code:
TEST_PACKAGES=(ccache dbus-daemon libbenchmark-dev libgtest-dev libgmock-dev fonts-dejavu-core clang-format-14
  at-spi2-core xvfb openbox xdotool xclip imagemagick libstb-dev emf2svg libwmf-bin libarchive-tools zip 7zip python3 mold
  rclone tree rsync unzip)
TIDY_PACKAGES=(clang-tidy-14)
# To check licences and what desktops read:
METADATA_PACKAGES=(appstream desktop-file-utils reuse)
# To use the exported page as people do:
BROWSER_PACKAGES=(chromium)
# To try the packages in clean systems:
PACKAGING_PACKAGES=(autopkgtest mmdebstrap)
# What the clang preset needs on top:
CLANG_PACKAGES=(clang-14 libclang-rt-14-dev llvm-14)

SCRIPT=./$(basename "$0")
STEP=starting

trap 'echo "$SCRIPT: failed while $STEP" >&2' ERR

# Names what the following commands do, for the message when one of them fails.
step() { STEP=$*; }

fail() {
  echo "$SCRIPT: $*" >&2
  exit 1
}

# Runs a command without its output, which is shown only if it fails.
quietly() {
  local output status=0
  output=$("$@" 2>&1 </dev/null) || status=$?
  [ "$status" -eq 0 ] || printf '%s\n' "$output" >&2
  return "$status"
}

program_version() { sed -n -E 's/^project\(quorvin VERSION ([0-9.]+).*/\1/p' CMakeLists.txt; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Installs those of the named packages that are missing; says nothing when there are none.
install_missing() {
  local package missing=()
  command -v apt-get >/dev/null ||
    { echo "This is not a Debian system; these packages, or their like, are needed: $*"; return; }
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
    fail "missing packages; as root, run: apt-get install ${missing[*]}"
  echo "Installing: ${missing[*]}"
  step "updating the package lists (apt-get update)"
  quietly as_root apt-get update -q
  step "installing packages (apt-get install ${missing[*]})"
  quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Configures a preset in a build folder, with further cache variables.
configure() {
  local preset=$1 folder=$2
  shift 2
  step "configuring the build (cmake --preset $preset)"
  quietly cmake --preset "$preset" -B "$folder" "$@"
}

# Builds targets in a build folder, saying so only if there is something to do; shows the single steps only to
# a person.
build() {
  local folder=$1 quiet=()
  shift
  step "building (ninja -C $folder${*:+ $*})"
  if ninja -C "$folder" -n --quiet "$@" | grep -q "no work to do"; then return; fi
  [ -t 1 ] || quiet=(--quiet)
  echo "Building in $folder ..."
  ninja -C "$folder" "${quiet[@]}" "$@"
}
