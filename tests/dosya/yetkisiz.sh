#!/bin/sh
# Runs the given test program as an unprivileged user, so that file modes hold. The program
# is copied into a temporary home of that user first: the build tree may be closed to it.
set -eu
if [ "$(id -u)" -ne 0 ]; then exec "$@"; fi
dizin=$(mktemp -d)
program="$dizin/$(basename "$1")"
cp "$1" "$program"
shift
chown -R nobody "$dizin"
durum=0
TMPDIR="$dizin" HOME="$dizin" setpriv --reuid=nobody --regid=nogroup --clear-groups \
  "$program" "$@" || durum=$?
rm -rf "$dizin"
exit $durum
