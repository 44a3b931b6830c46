#!/usr/bin/env bash
# Installs the Debian packages needed to build, test and benchmark the toolkit.
# Does nothing when every package is already installed, so the make targets can
# call it on every run.
set -euo pipefail

packages=(
    g++
    cmake
    ninja-build
    libboost-dev
    libboost-thread-dev
    libboost-system-dev
    libboost-filesystem-dev
    libpugixml-dev
    libgtest-dev
    libgmock-dev
    libbenchmark-dev
    clang
    ccache
    libclang-rt-14-dev
    libpng-dev
    libtiff-dev
    libjpeg62-turbo-dev
    libcli11-dev
    libhwy-dev
)
# Packages that one make target adds (make bench: the peer libraries it
# compares against).
read -r -a extra_packages <<< "${QUILON_EXTRA_PACKAGES:-}"
packages+=("${extra_packages[@]}")

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    if [[ "$status" != "install ok installed" ]]; then
        missing+=("$package")
    fi
done

if [[ ${#missing[@]} -eq 0 ]]; then
    echo "install-deps: all ${#packages[@]} packages present"
    exit 0
fi

sudo=()
if [[ $(id -u) -ne 0 ]]; then
    if command -v sudo >/dev/null 2>&1; then
        sudo=(sudo)
    else
        echo "install-deps: not root and no sudo; please install: ${missing[*]}" >&2
        exit 1
    fi
fi

echo "install-deps: installing ${missing[*]}"
"${sudo[@]}" apt-get update
"${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y "${missing[@]}"
