#!/usr/bin/env bash
# Installs what building, running and testing the shell needs (Debian 12).
set -euo pipefail
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq \
  build-essential cmake ninja-build pkg-config \
  libgtk-3-dev libwebkit2gtk-4.1-dev liburiparser-dev nlohmann-json3-dev libicu-dev \
  nodejs libx11-dev libcanberra-gtk3-dev libcanberra-pulse sound-theme-freedesktop \
  gsettings-desktop-schemas gnome-settings-daemon-common mutter-common gnome-shell-common \
  libgtest-dev libgmock-dev googletest \
  clang-format-14 clang clang-14 libclang-rt-14-dev clang-16 libc++-16-dev libc++abi-16-dev \
  librsvg2-common adwaita-icon-theme \
  python3 xvfb xauth openbox xdotool xclip x11-utils imagemagick dbus dbus-x11 xdg-utils \
  python3-dbusmock locales desktop-file-utils weston fonts-noto-color-emoji x11-xkb-utils \
  librsvg2-bin lintian appstream man-db pulseaudio pulseaudio-utils \
  libenchant-2-2 hunspell-tr hunspell-en-us >/dev/null
# The integration tests also run in our users' locale.
locale -a | grep -qix 'tr_TR.utf8' || $SUDO localedef -i tr_TR -c -f UTF-8 tr_TR.UTF-8
# npm comes with Debian's own nodejs as a package of its own; a Node.js that carries npm
# refuses that package.
command -v npm >/dev/null || $SUDO apt-get install -y -qq npm >/dev/null
# The TypeScript compiler that checks the page-side kit, at the version web/package-lock.json
# pins.
npm ci --prefix "$(dirname "$0")/../web" --no-audit --no-fund --loglevel=error >/dev/null
