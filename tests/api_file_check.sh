#!/usr/bin/env bash
# Fails when a committed file that app_s2j_api_files writes (the public
# header, the export list, the Debian symbols file) differs from what it
# writes now, and says how to write it again.  In cross builds the generator
# runs through $APP_S2J_EMULATOR.
# usage: api_file_check.sh GENERATOR FILE GENERATOR_ARGUMENTS...
set -u
. "$(dirname "$0")/shell_checks.sh"
generator=$1
file=$2
shift 2
# shellcheck disable=SC2086
check_generated "$file" "run 'cmake --build BUILD --target api-files' and commit it" \
  ${APP_S2J_EMULATOR:-} "$generator" "$@"
