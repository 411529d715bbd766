#!/usr/bin/env bash
# Installs what building, testing and the gallery need on Debian 12, skipping what is there.
set -euo pipefail

packages=(
    build-essential cmake pkg-config clang libclang-rt-dev
    libcegui-mk2-dev libcegui-mk2-data fonts-dejavu-core
    googletest libgtest-dev libbenchmark-dev
    libcairo2-dev libpcre2-dev locales-all
    libglfw3-dev libglew-dev libpng-dev xvfb xauth libgl1-mesa-dri
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done

if ((${#missing[@]})); then
    echo "setup: installing ${missing[*]}"
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -q
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
else
    echo "setup: all packages present"
fi
