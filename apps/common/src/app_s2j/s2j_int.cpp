// s2j_int.cpp - the three integer operations that the library adds to cJSON.
#include "s2j_internal.h"

// Representation.  cJSON keeps every number as a double (and a saturated int),
// which is exact only up to 2^53 and which cJSON_Print writes with "%1.15g"
// (10^15 comes out as "1e+15").  The library therefore marks integer items
// with a bit of `type` above cJSON's own flags (cJSON's type tests and
// printers look at the low byte only) and holds them in one of two forms:
//   |value| <  10^15   cJSON_Number | kIntMark; valuedouble is exact and
//                      cJSON prints it as plain digits;
//   |value| >= 10^15   cJSON_Raw | kIntMark; valuestring is the decimal text,
//                      which cJSON prints verbatim; valuedouble and valueint
//                      carry the nearest double and the saturated int for
//                      callers that read them.
// A number parsed by the library that is not an integer literal gets
// kNotIntMark, so that 1.0 or 1e2 in text is not an integer even though its
// value is integral.  Unmarked items come from plain cJSON; for them an
// integral value within the int64_t range counts as an integer.

using s2j::kIntMark;
using s2j::kNotIntMark;
using s2j::kRawThreshold;

S2J_API cJSON *cJSON_CreateInt(int64_t num) {
    if (num >= kRawThreshold || num <= -kRawThreshold) {
        char buf[24];
        cJSON *item = cJSON_CreateRaw(s2j::format_int(num, buf));
        if (item == nullptr) return nullptr;
        item->type |= kIntMark;
        item->valuedouble = static_cast<double>(num);
        item->valueint = s2j::saturate_int(num);
        return item;
    }
    cJSON *item = cJSON_CreateNumber(static_cast<double>(num));
    if (item != nullptr) item->type |= kIntMark;
    return item;
}

S2J_API cJSON *cJSON_AddIntToObject(cJSON *object, const char *name,
                                                                              int64_t num) {
    if (object == nullptr || name == nullptr) return nullptr;
    cJSON *item = cJSON_CreateInt(num);
    if (item == nullptr) return nullptr;
    if (!cJSON_AddItemToObject(object, name, item)) {
        cJSON_Delete(item);
        return nullptr;
    }
    return item;
}

S2J_API cJSON_bool cJSON_IsInt(const cJSON *item) { return s2j::is_int(item) ? 1 : 0; }

