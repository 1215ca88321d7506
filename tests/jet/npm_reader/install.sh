#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: install.sh FOLDER
# Installs the reader of package-lock.json into a build folder, once for each state of the lock file. Tests that
# run at the same time wait for each other.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
mkdir -p "$1"
cd "$1"
exec 9>.lock
flock 9
if cmp -s "$here/package-lock.json" installed-lock.json && cmp -s "$here/dump.mjs" dump.mjs; then exit 0; fi
rm -f installed-lock.json
cp "$here/package.json" "$here/package-lock.json" "$here/dump.mjs" .
npm ci --ignore-scripts --no-audit --no-fund --loglevel=error >install.log 2>&1 || {
  cat install.log >&2
  exit 1
}
cp package-lock.json installed-lock.json
