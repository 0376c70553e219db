#!/usr/bin/env bash
# Installs what building and testing Zentrel needs on Debian or Ubuntu, only when missing.
set -euo pipefail

packages=(g++ cmake ninja-build pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev
          libbenchmark-dev clang clang-format libclang-rt-14-dev strace fonts-liberation2)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
