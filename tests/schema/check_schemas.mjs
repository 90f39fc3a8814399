// check_schemas.mjs - checks the JSON Schemas of `app_s2j schema` with ajv
// against the library itself.
//
//   node check_schemas.mjs TOOL EXAMPLES_DIR CORPUS_DIR
//
// 1. `TOOL schema --all` compiles under ajv's strict mode, holds a schema for
//    every type `TOOL types` lists (and an update schema for every type with
//    c2s_array_update), and each embedded schema is what `TOOL schema TYPE
//    [--update]` prints.
// 2. Every example (EXAMPLES_DIR/<Type>.json, as the library writes it) is
//    valid against its type's schema, and an array example also against the
//    update schema.
// 3. Every file of CORPUS_DIR (<Type>.<case>.json) and files generated here
//    from the examples get two verdicts: ajv's and the library's as `TOOL
//    validate TYPE FILE` gives it (0 read exactly as written, 3 accepted but
//    not as written, 1 rejected; its verdict on acceptance is the library's,
//    which its own tests hold it to).  The schema accepts exactly the files
//    the library reads as written: a file the schema accepts must give 0,
//    a file that gives 0 must be accepted by the schema.
//    Where they disagree only because of what JSON Schema cannot say (the
//    library reads the first of duplicate keys, wants integer literals, not
//    1.0, and does not parse a \u escape of a lone surrogate), reading the
//    text as the library does gives the schema's verdict back: such a file
//    is counted as a known difference, with its reason.  Any other
//    disagreement is printed and fails the run.
import { execFile, execFileSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { isDeepStrictEqual } from "node:util";

const [tool, examplesDir, corpusDir] = process.argv.slice(2);
if (!tool || !examplesDir || !corpusDir) {
  console.error("usage: node check_schemas.mjs TOOL EXAMPLES_DIR CORPUS_DIR");
  process.exit(2);
}

// ajv comes from tests/schema/node_modules (npm ci, run by scripts/setup.sh).
let Ajv2020;
try {
  ({ default: Ajv2020 } = await import("ajv/dist/2020.js"));
} catch (e) {
  console.error(`ajv is not installed in ${path.dirname(new URL(import.meta.url).pathname)}: ` +
                `scripts/setup.sh installs it (npm ci there) [${e.code ?? e.message}]`);
  process.exit(1);
}

let problems = 0;
function problem(text) {
  problems += 1;
  console.log(`FAIL: ${text}`);
}

const run = (args) => execFileSync(tool, args, { encoding: "utf8", maxBuffer: 64 << 20 });

// ---- 1. the bundle -----------------------------------------------------------

const bundle = JSON.parse(run(["schema", "--all"]));
const ajv = new Ajv2020({ strict: true, allErrors: false });
ajv.addSchema(bundle);
const typeLines = run(["types"]).trim().split("\n");
const types = typeLines.map((l) => l.split(/\s+/)[0]);
const updateTypes = new Set(typeLines.filter((l) => /\bc2s_array_update\b/.test(l)).map((l) => l.split(/\s+/)[0]));
if (types.length === 0) problem("app_s2j types lists no type");

const validators = new Map();  // type -> validate function
const updateValidators = new Map();
function compiled(id) {
  try {
    const v = ajv.getSchema(id);
    if (!v) problem(`no schema ${id} in the bundle`);
    return v;
  } catch (e) {
    problem(`${id} does not compile: ${e.message}`);
    return undefined;
  }
}
for (const t of types) {
  const v = compiled(`urn:app-s2j:${t}`);
  if (v) validators.set(t, v);
  if (!isDeepStrictEqual(bundle.$defs[t], JSON.parse(run(["schema", t]))))
    problem(`the bundle's ${t} differs from app_s2j schema ${t}`);
  if (updateTypes.has(t)) {
    const u = compiled(`urn:app-s2j:${t}:update`);
    if (u) updateValidators.set(t, u);
    if (!isDeepStrictEqual(bundle.$defs[`${t}.update`], JSON.parse(run(["schema", t, "--update"]))))
      problem(`the bundle's ${t}.update differs from app_s2j schema ${t} --update`);
  }
}
const expectedDefs = types.length + updateTypes.size;
if (Object.keys(bundle.$defs).length !== expectedDefs)
  problem(`the bundle has ${Object.keys(bundle.$defs).length} schemas, want ${expectedDefs}`);
console.log(`bundle: ${validators.size} type schemas and ${updateValidators.size} update schemas compiled`);

// ---- 2. the examples -----------------------------------------------------------

const examples = new Map();  // type -> parsed example
for (const name of fs.readdirSync(examplesDir).filter((n) => n.endsWith(".json")).sort()) {
  const t = name.slice(0, -5);
  const v = validators.get(t);
  if (!v) {
    problem(`example ${name} names no type with a schema`);
    continue;
  }
  const value = JSON.parse(fs.readFileSync(path.join(examplesDir, name), "utf8"));
  examples.set(t, value);
  if (!v(value)) problem(`example ${name} is invalid: ${ajv.errorsText(v.errors)}`);
  const u = updateValidators.get(t);
  if (u && Array.isArray(value) && !u(value))
    problem(`example ${name} is not a valid update request: ${ajv.errorsText(u.errors)}`);
}
for (const t of types) if (!examples.has(t)) problem(`no example for ${t}`);
console.log(`examples: ${examples.size} valid against their schemas`);

// ---- 3. verdicts of the schema and of the library -------------------------------

// Reads JSON text as the library does, where that differs from JSON.parse:
// of duplicate keys the first wins, and a number written with a fraction or
// an exponent is not an integer even when its value is whole (it becomes a
// marker object that no integer schema accepts).  A \u escape of a lone
// surrogate does not parse.  Returns { value, reasons } or { error, reasons }.
function parseAsLibrary(text) {
  const reasons = new Set();
  let i = 0;
  const fail = (why) => {
    throw new Error(`${why} at offset ${i}`);
  };
  const ws = () => {
    while (i < text.length && " \t\r\n".includes(text[i])) i += 1;
  };
  const string = () => {
    i += 1;  // the opening quote
    let s = "";
    for (;;) {
      if (i >= text.length) fail("unterminated string");
      const c = text[i++];
      if (c === '"') return s;
      if (c < " ") fail("control character in a string");
      if (c !== "\\") {
        s += c;
        continue;
      }
      const e = text[i++];
      const simple = { '"': '"', "\\": "\\", "/": "/", b: "\b", f: "\f", n: "\n", r: "\r", t: "\t" }[e];
      if (simple !== undefined) {
        s += simple;
        continue;
      }
      if (e !== "u") fail("bad escape");
      const unit = () => {
        const h = text.slice(i, i + 4);
        if (!/^[0-9a-fA-F]{4}$/.test(h)) fail("bad \\u escape");
        i += 4;
        return parseInt(h, 16);
      };
      const u = unit();
      if (u === 0) reasons.add("a \\u0000 escape, where the library's string ends");
      if (u >= 0xdc00 && u <= 0xdfff) {
        reasons.add("a \\u escape of a lone surrogate");
        fail("lone low surrogate");
      }
      if (u >= 0xd800 && u <= 0xdbff) {
        if (text.slice(i, i + 2) !== "\\u") {
          reasons.add("a \\u escape of a lone surrogate");
          fail("lone high surrogate");
        }
        i += 2;
        const lo = unit();
        if (lo < 0xdc00 || lo > 0xdfff) {
          reasons.add("a \\u escape of a lone surrogate");
          fail("high surrogate without its low one");
        }
        s += String.fromCharCode(u, lo);
      } else {
        s += String.fromCharCode(u);
      }
    }
  };
  const number = () => {
    const m = /^-?(0|[1-9][0-9]*)(\.[0-9]+)?([eE][+-]?[0-9]+)?/.exec(text.slice(i, i + 400));
    if (!m) fail("bad number");
    i += m[0].length;
    const v = Number(m[0]);
    if ((m[2] || m[3]) && Number.isInteger(v)) {
      reasons.add(`${m[0]} is whole but not an integer literal`);
      return { "(not an integer literal)": m[0] };
    }
    return v;
  };
  const value = () => {
    ws();
    const c = text[i];
    if (c === "{") {
      i += 1;
      const obj = {};
      ws();
      if (text[i] === "}") {
        i += 1;
        return obj;
      }
      for (;;) {
        ws();
        if (text[i] !== '"') fail("key expected");
        const k = string();
        ws();
        if (text[i++] !== ":") fail("':' expected");
        const v = value();
        if (Object.prototype.hasOwnProperty.call(obj, k)) reasons.add(`duplicate key "${k}" (the first counts)`);
        else Object.defineProperty(obj, k, { value: v, enumerable: true, writable: true, configurable: true });
        ws();
        const d = text[i++];
        if (d === "}") return obj;
        if (d !== ",") fail("',' or '}' expected");
      }
    }
    if (c === "[") {
      i += 1;
      const arr = [];
      ws();
      if (text[i] === "]") {
        i += 1;
        return arr;
      }
      for (;;) {
        arr.push(value());
        ws();
        const d = text[i++];
        if (d === "]") return arr;
        if (d !== ",") fail("',' or ']' expected");
      }
    }
    if (c === '"') return string();
    for (const [word, v] of [["true", true], ["false", false], ["null", null]]) {
      if (text.startsWith(word, i)) {
        i += word.length;
        return v;
      }
    }
    return number();
  };
  try {
    const v = value();
    ws();
    if (i !== text.length) fail("text after the value");
    return { value: v, reasons: [...reasons] };
  } catch (e) {
    return { error: e.message, reasons: [...reasons] };
  }
}

function schemaVerdict(type, text) {
  let value;
  try {
    value = JSON.parse(text);
  } catch {
    return false;  // not JSON at all
  }
  return validators.get(type)(value);
}

// The cases: [type, file].
const cases = [];
for (const name of fs.existsSync(corpusDir) ? fs.readdirSync(corpusDir).sort() : []) {
  if (!name.endsWith(".json")) continue;
  const t = name.split(".")[0];
  if (!validators.has(t)) {
    problem(`corpus file ${name} names no type with a schema`);
    continue;
  }
  cases.push([t, path.join(corpusDir, name)]);
}
const corpusCount = cases.length;

// Files made from each example: one per field and wrong value, alternately a
// single record and a record array (the example's first record, then the
// changed one).  None uses duplicate keys, whole numbers with a fraction or
// an exponent, non-ASCII text or numbers beyond 2^53 but the two explicit
// known-limit files per type at the end.  Those differ where the library
// reads the text with integer marking (a type read through a plain cJSON
// tree takes 1.0 as an integer), and each limit must show at least once.
const tmp = fs.mkdtempSync(path.join(os.tmpdir(), "app-s2j-schema-"));
process.on("exit", () => fs.rmSync(tmp, { recursive: true, force: true }));
let generatedCount = 0;
function generate(t, what, record, rawText = undefined) {
  const base = Array.isArray(examples.get(t)) ? examples.get(t)[0] : examples.get(t);
  const asArray = generatedCount % 2 === 1;
  const text = rawText ?? JSON.stringify(asArray ? [base, record] : record, null, "\t") + "\n";
  const file = path.join(tmp, `${t}.${what}.json`);
  fs.writeFileSync(file, text);
  cases.push([t, file]);
  generatedCount += 1;
}
const RANGE = { I32: [-2147483648, 2147483647], U32: [0, 4294967295], U16: [0, 65535] };
const kindOf = (fs_) =>
  fs_.type === "string" ? "Str" : fs_.type === "array" ? "U32List"
  : fs_.minimum < 0 ? "I32" : fs_.maximum === 65535 ? "U16" : "U32";
for (const t of types) {
  const example = examples.get(t);
  if (example === undefined) continue;
  const base = Array.isArray(example) ? example[0] : example;
  const props = bundle.$defs[t].$defs.record.properties;
  const keys = Object.keys(props);
  const withField = (k, v) => ({ ...base, [k]: v });
  const longest = {}, shortest = {};
  for (const k of keys) {
    const kind = kindOf(props[k]);
    if (kind === "Str") {
      const n = props[k].maxLength;
      generate(t, `${k}-is-an-integer`, withField(k, 1));
      generate(t, `${k}-one-byte-too-long`, withField(k, "x".repeat(n + 1)));
      longest[k] = "x".repeat(n);
      shortest[k] = "";
    } else if (kind === "U32List") {
      const n = props[k].maxItems;
      generate(t, `${k}-is-a-string`, withField(k, "1"));
      generate(t, `${k}-is-empty`, withField(k, []));
      generate(t, `${k}-one-entry-too-many`, withField(k, Array(n + 1).fill(1)));
      longest[k] = Array(n).fill(4294967295);
      shortest[k] = [0];
    } else {
      const [lo, hi] = RANGE[kind];
      generate(t, `${k}-is-a-string`, withField(k, String(hi)));
      generate(t, `${k}-one-above-range`, withField(k, hi + 1));
      if (lo < 0) generate(t, `${k}-one-below-range`, withField(k, lo - 1));
      longest[k] = hi;
      shortest[k] = lo;
    }
  }
  generate(t, "every-field-at-its-largest", longest);
  generate(t, "every-field-at-its-smallest", shortest);
  generate(t, "unknown-key", { ...base, NoSuchKey: 1 });
  generate(t, "key-in-lower-case", { [keys[0].toLowerCase()]: base[keys[0]] });
  generate(t, "no-keys", {});
  generate(t, "empty-array", null, "[]\n");
  generate(t, "array-of-an-integer", null, "[1]\n");
  generate(t, "top-level-integer", null, "1\n");
  // Known limits.
  const intKey = keys.find((k) => props[k].type === "integer");
  if (intKey) generate(t, `known-limit.${intKey}-written-1.0`, null, `{"${intKey}": 1.0}\n`);
  generate(t, `known-limit.${keys[0]}-duplicate-first-wrong`, null,
           `{"${keys[0]}": {}, "${keys[0]}": ${JSON.stringify(base[keys[0]])}}\n`);
  const strKey = keys.find((k) => props[k].type === "string");
  if (strKey && t === "DeviceInfo")
    generate(t, `known-limit.${strKey}-lone-surrogate`, null, `{"${strKey}": "\\ud800"}\n`);
}

// The library's verdicts, a few tool processes at a time: the exit status of
// validate (0, 1 or 3), or a text saying what went wrong.
function libraryVerdict(t, file) {
  return new Promise((resolve) => {
    execFile(tool, ["validate", t, file], { encoding: "utf8" }, (err, stdout, stderr) => {
      const code = err ? err.code : 0;
      if (code === 0 || code === 1 || code === 3) resolve(code);
      else resolve(`exit ${code}: ${stderr.trim()}`);
    });
  });
}
const verdicts = new Array(cases.length);
let next = 0;
async function worker() {
  while (next < cases.length) {
    const n = next++;
    verdicts[n] = await libraryVerdict(cases[n][0], cases[n][1]);
  }
}
await Promise.all(Array.from({ length: Math.max(2, os.cpus().length) }, worker));

const knownReasons = new Set();
const count = { bothAccept: 0, bothReject: 0, schemaStricter: 0, known: 0, wrong: 0 };
cases.forEach(([t, file], n) => {
  const code = verdicts[n];
  const shown = path.basename(file);
  if (typeof code !== "number") {
    problem(`${shown}: app_s2j validate ${t} failed: ${code}`);
    return;
  }
  const lib = code !== 1;
  const text = fs.readFileSync(file, "utf8");
  const schema = schemaVerdict(t, text);
  if (schema && code === 3) {
    // Accepted, but not as written: the schema may not see why only where
    // reading the text as the library does differs from JSON.parse.
    const asLib = parseAsLibrary(text);
    if (asLib.reasons.length > 0) {
      count.known += 1;
      console.log(`known difference: ${shown}: the schema accepts, the library does not keep it as written: ` +
                  asLib.reasons.join("; "));
      return;
    }
    count.wrong += 1;
    problem(`${shown}: the schema accepts it but the library does not keep it as written (${t})`);
  } else if (!schema && code === 0) {
    count.wrong += 1;
    problem(`${shown}: the library reads it exactly as written but the schema rejects it (${t})`);
  } else if (schema && !lib) {
    const asLib = parseAsLibrary(text);
    const explained = asLib.reasons.length > 0 && !(asLib.value !== undefined && validators.get(t)(asLib.value));
    if (explained) {
      count.known += 1;
      for (const r of asLib.reasons)
        knownReasons.add(r.startsWith("duplicate") ? "duplicate" : r.includes("literal") ? "literal" : r);
      console.log(`known difference: ${shown}: the schema accepts, the library rejects: ${asLib.reasons.join("; ")}`);
      return;
    }
    count.wrong += 1;
    problem(`${shown}: the schema accepts it but the library rejects it (${t})`);
  } else if (schema && lib) {
    count.bothAccept += 1;
  } else if (!schema && !lib) {
    count.bothReject += 1;
  } else {
    count.schemaStricter += 1;  // the library loads it, but not as written; the schema says no
  }
});

// The documented limits are real: some generated file shows each of them.
if (!knownReasons.has("duplicate")) problem("no file showed the duplicate-key difference");
if (!knownReasons.has("literal")) problem("no file showed the integer-literal difference");
if (!knownReasons.has("a \\u escape of a lone surrogate")) problem("no file showed the lone-surrogate difference");

console.log(`files: ${cases.length} (${corpusCount} from the corpus, ${generatedCount} generated)`);
console.log(`  both accept:                              ${count.bothAccept}`);
console.log(`  both reject:                              ${count.bothReject}`);
console.log(`  schema rejects, library loads, not as written: ${count.schemaStricter}`);
console.log(`  known differences:                        ${count.known}`);
console.log(`  disagreements:                            ${count.wrong}`);
console.log(problems === 0 ? "schemas agree with the library" : `${problems} problem(s)`);
process.exit(problems === 0 ? 0 : 1);
