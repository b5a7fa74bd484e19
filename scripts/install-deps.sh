#!/usr/bin/env bash
# Installs whatever the build needs and this machine lacks (Debian packages only).
set -euo pipefail
packages=(cmake g++ make libgtest-dev libgmock-dev libbenchmark-dev libsqlite3-dev
  qt6-base-dev libfontconfig-dev qt6-l10n-tools qt6-tools-dev qt6-translations-l10n libedit-dev nlohmann-json3-dev xvfb xauth
  desktop-file-utils appstream dpkg-dev file debhelper lintian build-essential fakeroot)
packages+=("$@")
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
