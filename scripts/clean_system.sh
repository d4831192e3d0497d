# SPDX-License-Identifier: GPL-2.0-or-later

# Clean Debian systems to try packages in; to be sourced by bash after common.sh. They are made in TOP, and gone at the
# end; SYSTEM is the one that was made last.

TOP=${QUORVIN_PACKAGES:-$PWD/build/packages}
trap 'rm -rf "$TOP"/system-*' EXIT

# systems_possible WHAT PACKAGE...: whether such systems can be made here, with these Debian packages. If not, it says why
# WHAT is not tested.
systems_possible() {
  local what=$1 package missing=()
  shift
  for package in mmdebstrap "$@"; do is_installed "$package" || missing+=("$package"); done
  if [ ${#missing[@]} -gt 0 ]; then
    echo "$what are not tested: ${missing[*]} not installed."
  elif [ "$(id -u)" -ne 0 ] || ! unshare --mount --pid --fork true 2>/dev/null; then
    echo "$what are not tested: that needs root, and a system that lets it mount."
  else
    return 0
  fi
  return 1
}

# fresh_system NAME [SUITE]: a new Debian with nothing in it but what every system has; Debian 12 where no suite is named.
fresh_system() {
  SYSTEM=$TOP/system-$1
  local suite=${2:-bookworm}
  local packed=$TOP/$suite.tar
  mkdir -p "$TOP"
  if [ ! -e "$packed" ]; then
    step "fetching a clean Debian ($suite)"
    quietly mmdebstrap --variant=minbase --format=tar "$suite" "$packed.part"
    mv "$packed.part" "$packed"
  fi
  step "unpacking a clean Debian ($1)"
  rm -rf "$SYSTEM"
  mkdir -p "$SYSTEM"
  tar -C "$SYSTEM" --numeric-owner -xf "$packed"
  cp -L /etc/resolv.conf "$SYSTEM/etc/resolv.conf"
  quietly inside apt-get update -q
}

# Runs a command while the system has what a running one has.
beside() {
  sh -c 'mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" && mount --bind /sys "$0/sys" && exec "$@"' "$SYSTEM" "$@"
}

# Runs a command in it. Whatever it starts ends with it.
inside() {
  export SYSTEM
  export -f beside
  unshare --mount --pid --fork --kill-child -- bash -c 'beside chroot "$SYSTEM" "$@"' inside \
    /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

install_inside() { quietly inside apt-get install -q -y --no-install-recommends "$@"; }

# Installs there what Debian's packages of the commit that is checked out need to be built.
install_needs_inside() {
  step "installing what is needed to build"
  mkdir -p "$SYSTEM/needs"
  git archive HEAD debian | tar -x -C "$SYSTEM/needs"
  quietly inside sh -c 'cd /needs && apt-get build-dep -q -y --no-install-recommends ./'
}
