#!/usr/bin/env bash
# Fails when the committed reference of records differs from what the tool
# prints now, and says how to write it again.
# usage: reference_doc_check.sh TOOL DOC
set -u
tool=$1
doc=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
if ! "$tool" reference > "$tmp/records.md"; then
  echo "app_s2j reference failed" >&2
  exit 1
fi
if ! cmp -s "$tmp/records.md" "$doc"; then
  echo "$doc is out of date: run 'cmake --build BUILD --target records-doc' and commit docs/records.md" >&2
  diff -u "$doc" "$tmp/records.md" | head -40
  exit 1
fi
echo "$doc is up to date"
