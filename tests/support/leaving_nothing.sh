#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-2.0-or-later
#
# Runs a test program with a folder of its own for temporary files. The program fails, whatever it says itself, when
# something is left in there at its end.
set -u
place=$(mktemp -d)
trap 'chmod -R u+rwX "$place" && rm -rf "$place"' EXIT
folder=$place/tmp
# As open as the usual folder: some tests give up the rights of the administrator.
chmod 711 "$place"
mkdir -m 1777 "$folder"
mkdir -m 700 "$place/run"

TMPDIR=$folder XDG_RUNTIME_DIR=$place/run "$@"
status=$?

left=$(ls -A "$folder")
if [ -n "$left" ]; then
  echo "left in the folder for temporary files:"
  ls -lAR "$folder"
  exit 1
fi
exit "$status"
