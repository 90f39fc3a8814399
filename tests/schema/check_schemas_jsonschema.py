#!/usr/bin/python3
"""The schemas of `app_s2j schema --all` under a second, independent JSON
Schema implementation (Debian's python3-jsonschema, Draft 2020-12):

  check_schemas_jsonschema.py TOOL EXAMPLES_DIR CORPUS_DIR

The bundle and every schema in it are valid 2020-12 schemas, every example
is valid, and over the corpus (<Type>.<case>.json, read as an update when
<case> starts with "update.") a file is valid exactly when `TOOL validate`
exits 0 (the library reads it as written), except where the text holds what
JSON Schema cannot see: a repeated key, a whole number written as 1.0 or
1e2, an escaped NUL, or (in an update) two elements naming one record.
"""
import glob
import json
import os
import subprocess
import sys

from jsonschema import Draft202012Validator

tool, examples, corpus = sys.argv[1:4]
failures = 0


def fail(text):
    global failures
    failures += 1
    print("FAIL: " + text)


def run(*args):
    return subprocess.run([tool, *args], capture_output=True, text=True)


bundle = json.loads(run("schema", "--all").stdout)
Draft202012Validator.check_schema(bundle)
schemas = bundle["$defs"]
for name, schema in schemas.items():
    Draft202012Validator.check_schema(schema)
types = [line.split()[0] for line in run("types").stdout.splitlines()]
for t in types:
    if t not in schemas:
        fail(f"no schema for {t}")

for path in sorted(glob.glob(os.path.join(examples, "*.json"))):
    t = os.path.basename(path)[:-5]
    errors = list(Draft202012Validator(schemas[t]).iter_errors(json.load(open(path))))
    if errors:
        fail(f"{path}: {errors[0].message}")


def limits(text):
    """What JSON Schema cannot see in the text, as the library reads it."""
    found = []

    def pairs(items):
        keys = [k.lower() for k, _ in items]
        if len(set(keys)) != len(keys):
            found.append("a repeated key")
        return dict(items)

    def number(literal):
        if float(literal).is_integer():
            found.append("a whole number written " + literal)
        return float(literal)

    if "\\u0000" in text:
        found.append("an escaped NUL")
    try:
        json.loads(text.lstrip("\ufeff"), object_pairs_hook=pairs, parse_float=number)
    except ValueError:
        pass
    return found


counts = {"agree": 0, "known": 0}
for path in sorted(glob.glob(os.path.join(corpus, "*.json"))):
    t, case = os.path.basename(path).split(".", 1)
    update = case.startswith("update.")
    # What a conforming parser reads: strict UTF-8, no byte order mark; NUL
    # bytes that only pad the file after the document are not part of it.
    raw = open(path, "rb").read().rstrip(b"\0")
    text = raw.decode("utf-8", errors="replace")
    try:
        doc = json.loads(raw.decode("utf-8"))
        valid = Draft202012Validator(schemas[t + ".update" if update else t]).is_valid(doc)
    except ValueError:
        valid = False
    code = run("validate", t, path, *(["--update"] if update else [])).returncode
    if valid == (code == 0):
        counts["agree"] += 1
        continue
    reasons = limits(text)
    if update and valid and code == 3 and "names the same record" in run("validate", t, path, "--update").stdout:
        reasons.append("two elements naming one record")
    if reasons:
        counts["known"] += 1
        print(f"known difference: {os.path.basename(path)}: {'; '.join(reasons)}")
    else:
        fail(f"{os.path.basename(path)}: schema says {'valid' if valid else 'invalid'}, validate exits {code}")

print(f"schemas: {len(schemas)}; examples valid; corpus: {counts['agree']} agree, {counts['known']} known differences")
sys.exit(1 if failures else 0)
