#!/usr/bin/env bash
# Fails when the committed reference of records differs from what the tool
# prints now, and says how to write it again.
# usage: reference_doc_check.sh TOOL DOC
set -u
. "$(dirname "$0")/shell_checks.sh"
check_generated "$2" "run 'cmake --build BUILD --target records-doc' and commit docs/records.md" "$1" reference
