#!/usr/bin/env bash
# What the macOS bundle carries of others' code, fetched from pinned releases and checked
# against their published SHA-256 before use (run on a Mac):
#   mac_bagimliliklari.sh kutuphaneler ONEK   ICU and uriparser built as static libraries
#                                             for the oldest supported macOS, installed
#                                             under ONEK (pkg-config files in ONEK/lib/pkgconfig)
#   mac_bagimliliklari.sh node DIZIN          the official self-contained Node.js release,
#                                             unpacked under DIZIN; prints its `node`
# EN_DUSUK_MACOS (12.0) and MIMARI (arm64 or x86_64, the host's by default) choose the build.
set -euo pipefail

# The pins: every version and checksum the bundle's foreign code comes from.
NODE_SURUMU=22.12.0  # an LTS line whose minimum macOS (11.0) is below the bundle's
NODE_SHA256_arm64=293dcc6c2408da21562d135b0412525e381bb6fe150d688edb58fe850d0f3e13
NODE_SHA256_x86_64=52bc25dd026db7247c3c00439afdb83e95087248267f02d6c1a7250d1f896173
ICU_ADRESI=https://github.com/unicode-org/icu/releases/download/release-76-1/icu4c-76_1-src.tgz
ICU_SHA256=dfacb46bfe4747410472ce3e1144bf28a102feeaa4e3875bac9b4c6cf30f4f3e
URIPARSER_SURUMU=0.9.8
URIPARSER_ADRESI=https://github.com/uriparser/uriparser/releases/download
URIPARSER_ADRESI+=/uriparser-$URIPARSER_SURUMU/uriparser-$URIPARSER_SURUMU.tar.bz2
URIPARSER_SHA256=72d1b559be3a1806f788a3d9be34a1b063d42aa238b29ba4ee633d6effcd33bd

EN_DUSUK_MACOS="${EN_DUSUK_MACOS:-12.0}"
MIMARI="${MIMARI:-$(uname -m)}"
IS_SAYISI="$(sysctl -n hw.ncpu)"

# indir ADRES SHA256 DOSYA: the file, refused unless its checksum is the pinned one.
indir() {
  curl -fsSL --retry 3 -o "$3" "$1"
  echo "$2  $3" | shasum -a 256 -c - >&2
}

kutuphaneler() {
  local onek="$1" is
  is="$(mktemp -d)"
  export MACOSX_DEPLOYMENT_TARGET="$EN_DUSUK_MACOS"
  local bayraklar="-arch $MIMARI -mmacosx-version-min=$EN_DUSUK_MACOS -O2"

  indir "$URIPARSER_ADRESI" "$URIPARSER_SHA256" "$is/uriparser.tar.bz2"
  tar -xjf "$is/uriparser.tar.bz2" -C "$is"
  cmake -S "$is"/uriparser-* -B "$is/uriparser-insa" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$onek" -DCMAKE_OSX_DEPLOYMENT_TARGET="$EN_DUSUK_MACOS" \
    -DCMAKE_OSX_ARCHITECTURES="$MIMARI" -DBUILD_SHARED_LIBS=OFF -DURIPARSER_SHARED_LIBS=OFF \
    -DURIPARSER_BUILD_TESTS=OFF -DURIPARSER_BUILD_DOCS=OFF -DURIPARSER_BUILD_TOOLS=OFF >&2
  cmake --build "$is/uriparser-insa" -j "$IS_SAYISI" >&2
  cmake --install "$is/uriparser-insa" >&2

  indir "$ICU_ADRESI" "$ICU_SHA256" "$is/icu.tgz"
  tar -xzf "$is/icu.tgz" -C "$is"
  (cd "$is/icu/source" &&
    CFLAGS="$bayraklar" CXXFLAGS="$bayraklar" LDFLAGS="$bayraklar" \
      ./runConfigureICU MacOSX --prefix="$onek" --enable-static --disable-shared \
      --disable-samples --disable-tests --disable-extras --disable-icuio --disable-layoutex >&2 &&
    make -j "$IS_SAYISI" >&2 && make install >&2)

  # Nothing but the static libraries: the bundle then links no library of this prefix.
  if compgen -G "$onek/lib/*.dylib" >/dev/null; then
    echo "shared libraries in $onek/lib" >&2
    exit 1
  fi
  rm -rf "$is"
}

calisma_ortami() {
  local dizin="$1" surum_mimari ad sha
  case "$MIMARI" in
    arm64) surum_mimari=darwin-arm64 sha="$NODE_SHA256_arm64" ;;
    x86_64) surum_mimari=darwin-x64 sha="$NODE_SHA256_x86_64" ;;
    *) echo "no Node.js release pinned for $MIMARI" >&2; exit 1 ;;
  esac
  ad="node-v$NODE_SURUMU-$surum_mimari"
  mkdir -p "$dizin"
  # The release's own list of checksums must name the pinned one for this file.
  curl -fsSL --retry 3 -o "$dizin/SHASUMS256.txt" \
    "https://nodejs.org/dist/v$NODE_SURUMU/SHASUMS256.txt"
  grep -qx "$sha  $ad.tar.gz" "$dizin/SHASUMS256.txt" || {
    echo "SHASUMS256.txt of v$NODE_SURUMU does not list $sha for $ad.tar.gz" >&2
    exit 1
  }
  indir "https://nodejs.org/dist/v$NODE_SURUMU/$ad.tar.gz" "$sha" "$dizin/$ad.tar.gz"
  tar -xzf "$dizin/$ad.tar.gz" -C "$dizin"
  test -x "$dizin/$ad/bin/node"
  echo "$dizin/$ad/bin/node"
}

case "${1:-}" in
  kutuphaneler) kutuphaneler "$2" ;;
  node) calisma_ortami "$2" ;;
  *) echo "usage: $0 kutuphaneler ONEK | node DIZIN" >&2; exit 2 ;;
esac
