// fuzz_validate.cpp - arbitrary bytes through the validator of the app_s2j
// tool, for the record type the input's header names (fuzz_input.h): it must
// neither crash nor leak, and its verdict must be the library's own - the
// document loaded through the library's families as the tool loads it.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fuzz_input.h"
#include "validate.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Input in;
    if (!fuzz::decode(data, size, &in)) return 0;
    const s2j::TypeInfo &t = *in.target.type;
    const std::string text(reinterpret_cast<const char *>(in.text), in.len);

    app_s2j_tool::Validation v = app_s2j_tool::validate_text(t, text, false);
    app_s2j_tool::Loaded loaded;
    int rc = app_s2j_tool::load(t, text, &loaded);
    if (v.accepted() != (rc == 0)) {
        std::fprintf(stderr, "validate and the library disagree on %s: validator %s, library status %d\n%s", t.name,
                     v.accepted() ? "accepts" : "rejects", rc, app_s2j_tool::format_findings("input", v).c_str());
        std::abort();
    }
    // The update reading of the same text must not fail in any other way.
    if (t.fam.c2s_array_update != nullptr) app_s2j_tool::validate_text(t, text, true);
    return 0;
}
