# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What ./rbk needs of Debian, sourced by it.

say() { printf '== %s\n' "$*"; }

die() {
  printf '%s\n' "./rbk: $*" >&2
  exit 1
}

# missing_of PACKAGE...: those that are not installed, a line each.
missing_of() {
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s\n' "$package"
  done
}

# apt_get ARGUMENT...: as root; while another package manager is at work it waits, for half an hour at most. Else it
# fails with the first complaint on standard output.
apt_get() {
  local as_root=() answer waited=0
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  until answer=$("${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -qq "$@" 2>&1); do
    if ! grep -q 'Could not get lock\|another process' <<<"$answer" || [ "$waited" -ge 1800 ]; then
      grep -m 1 '^E: ' <<<"$answer" || tail -n 1 <<<"$answer"
      return 1
    fi
    [ "$waited" -gt 0 ] || say "waiting for another package manager" >&2
    sleep "${RBK_APT_PAUSE:-5}"
    waited=$((waited + 5))
  done
}

# install PACKAGE...: those that are missing. Nobody is asked for rights when none is.
install() {
  local missing complaint
  command -v dpkg-query >/dev/null || return 0
  mapfile -t missing < <(missing_of "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  say "installing ${missing[*]}"
  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null || die "to install ${missing[*]} it takes root or sudo"
  # Lists that cannot be brought up to date may still do.
  complaint=$(apt_get update) || say "package lists: $complaint"
  complaint=$(apt_get install -y --no-install-recommends "${missing[@]}") ||
    die "cannot install ${missing[*]}: $complaint"
}
