#!/usr/bin/env bash
# Fails when a committed file that app_s2j_api_files writes (the public
# header, the export list, the Debian symbols file) differs from what it
# writes now, and says how to write it again.  In cross builds the generator
# runs through $APP_S2J_EMULATOR.
# usage: api_file_check.sh GENERATOR FILE GENERATOR_ARGUMENTS...
set -u
generator=$1
file=$2
shift 2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
# shellcheck disable=SC2086
if ! ${APP_S2J_EMULATOR:-} "$generator" "$@" > "$tmp/fresh"; then
  echo "app_s2j_api_files $* failed" >&2
  exit 1
fi
if ! cmp -s "$tmp/fresh" "$file"; then
  echo "$file is out of date: run 'cmake --build BUILD --target api-files' and commit it" >&2
  diff -u "$file" "$tmp/fresh" | head -40
  exit 1
fi
echo "$file is up to date"
