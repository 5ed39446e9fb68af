#!/usr/bin/env bash
# The source layout check: every tracked C++ source is laid out as clang-format-14 writes
# it (rules in .clang-format), and no line of a source, build or script file is over 100
# columns (characters, not bytes).
#
#   scripts/bicim_denetle.sh            check; lists what is off and exits non-zero
#   scripts/bicim_denetle.sh --duzelt   format the C++ sources in place, then check
set -euo pipefail
export LC_ALL=C.UTF-8

SINIR=100
KOK="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$KOK"

kullanim() { sed -n '2,8s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"; }

duzelt=0
case "${1:-}" in
  "") ;;
  --duzelt) duzelt=1 ;;
  -h | --help) kullanim; exit 0 ;;
  *) echo "bicim_denetle.sh: unknown option '$1'" >&2; kullanim >&2; exit 2 ;;
esac

# Only version 14: another version lays the same code out differently.
arac=""
for aday in "$(command -v clang-format-14 || true)" /usr/bin/clang-format-14; do
  if [ -n "$aday" ] && [ -x "$aday" ]; then arac="$aday"; break; fi
done
if [ -z "$arac" ]; then
  echo "bicim_denetle.sh: clang-format-14 not found." >&2
  echo "  Debian 12: sudo apt-get install clang-format-14 (or run scripts/bagimliliklar.sh)." >&2
  exit 1
fi
if ! "$arac" --version | grep -q 'version 14\.'; then
  echo "bicim_denetle.sh: $arac is not version 14: $("$arac" --version)" >&2
  exit 1
fi

# The files to look at: the tracked ones in a git checkout, else those found on disk.
dosyalar=()
if command -v git >/dev/null 2>&1 && git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
  while IFS= read -r -d '' yol; do
    [ -f "$yol" ] && dosyalar+=("$yol")
  done < <(git ls-files -z)
else
  while IFS= read -r -d '' yol; do
    dosyalar+=("${yol#./}")
  done < <(find src tests bench cmake scripts CMakeLists.txt -type f -print0 2>/dev/null | sort -z)
fi

kaynaklar=()  # laid out by clang-format
satirlilar=() # held to the column limit
for yol in "${dosyalar[@]}"; do
  case "$yol" in
    *.cpp | *.hpp | *.h | *.mm) kaynaklar+=("$yol"); satirlilar+=("$yol") ;;
    *.py | *.cmake | *.sh | CMakeLists.txt | */CMakeLists.txt) satirlilar+=("$yol") ;;
  esac
done

if [ "$duzelt" -eq 1 ] && [ "${#kaynaklar[@]}" -gt 0 ]; then
  "$arac" -i -- "${kaynaklar[@]}"
  echo "Formatted ${#kaynaklar[@]} C++ sources with $arac."
fi

hata=0

bicimsiz=0
for yol in "${kaynaklar[@]}"; do
  if ! "$arac" --dry-run --Werror -- "$yol" >/dev/null 2>&1; then
    yerler=$("$arac" --dry-run -- "$yol" 2>&1 | grep -c 'clang-format-violations' || true)
    echo "$yol: laid out differently from clang-format-14 ($yerler places)"
    bicimsiz=$((bicimsiz + 1))
  fi
done
if [ "$bicimsiz" -gt 0 ]; then
  echo "$bicimsiz of ${#kaynaklar[@]} C++ sources need formatting;" \
    "scripts/bicim_denetle.sh --duzelt formats them"
  hata=1
fi

uzun=0
for yol in "${satirlilar[@]}"; do
  if ! iconv -f UTF-8 -t UTF-8 "$yol" >/dev/null 2>&1; then
    echo "$yol: not UTF-8 text"
    hata=1
    continue
  fi
  while IFS= read -r satir; do
    no="${satir%%:*}"
    metin="${satir#*:}"
    echo "$yol:$no: ${#metin} columns, over $SINIR"
    uzun=$((uzun + 1))
  done < <(grep -anE "^.{$((SINIR + 1)),}" -- "$yol" || true)
done
if [ "$uzun" -gt 0 ]; then
  echo "$uzun lines over $SINIR columns"
  hata=1
fi

if [ "$hata" -eq 0 ]; then
  echo "Layout check passed: ${#kaynaklar[@]} C++ sources formatted," \
    "${#satirlilar[@]} files within $SINIR columns."
fi
exit "$hata"
