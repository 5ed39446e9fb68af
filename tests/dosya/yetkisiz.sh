#!/bin/sh
# Runs the given test program as an unprivileged user, so that file modes hold.
set -eu
if [ "$(id -u)" -ne 0 ]; then exec "$@"; fi
dizin=$(mktemp -d)
chown nobody "$dizin"
durum=0
TMPDIR="$dizin" HOME="$dizin" setpriv --reuid=nobody --regid=nogroup --clear-groups "$@" ||
  durum=$?
rm -rf "$dizin"
exit $durum
