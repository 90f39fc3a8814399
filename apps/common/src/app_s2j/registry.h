// registry.h - the internal type registry: for every record type its name,
// size, field table, emitter and reader, keyword readers and the family
// members it has, each with the line of its instantiation.  Built into the
// internal static library for the tests and the command-line tool; the
// shared library does not export it.  Every function pointer here calls the
// exported function of the shared library through a type-erased trampoline.
// The top internal header: it includes the layers below it (data model,
// layout checks, key comparison, record engines, integer items, the table
// of families) for the tests and the tool, and none includes it.
#ifndef APP_S2J_REGISTRY_H
#define APP_S2J_REGISTRY_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "app_s2j.h"
#include "s2j_codec.h"
#include "s2j_family_table.h"
#include "s2j_int.h"
#include "s2j_keys.h"
#include "s2j_layout.h"
#include "s2j_model.h"

namespace s2j {

// The family members a type has (null where it has none), one per row of
// S2J_FAMILIES with the record type erased (const void *, void *), and the
// line of each member's instantiation (0 where it has
// none; a _with_len member is on the line of the member it comes with).
#define S2J_FAMILY_POINTER(Id, member, prefix, suffix, Maker, list, ret, params, T) ret(*member) params;
#define S2J_FAMILY_LINE(Id, member, ...) int member;
struct Families {
    S2J_FAMILIES(S2J_FAMILY_POINTER, void)
    struct Lines {
        S2J_FAMILIES(S2J_FAMILY_LINE, T)
    } line;
};
#undef S2J_FAMILY_POINTER
#undef S2J_FAMILY_LINE

// Whether the type has the member of family f.
inline bool has_family(const Families &fam, Family f) {
    switch (f) {
#define S2J_FAMILY_CASE(Id, member, ...) \
    case Family::Id: return fam.member != nullptr;
        S2J_FAMILIES(S2J_FAMILY_CASE, T)
#undef S2J_FAMILY_CASE
    }
    return false;
}

// The line of the type's member of family f (0 where it has none).
inline int family_line(const Families &fam, Family f) {
    switch (f) {
#define S2J_FAMILY_CASE(Id, member, ...) \
    case Family::Id: return fam.line.member;
        S2J_FAMILIES(S2J_FAMILY_CASE, T)
#undef S2J_FAMILY_CASE
    }
    return 0;
}

struct TypeInfo {
    const char *name;
    const TypeDesc *desc;
    const TypeHooks *hooks;
    Families fam;
    const char *subsystem;
};

// Every record type, in subsystem order; *count receives their number.
const TypeInfo *registry(size_t *count);
// The type of that exact name, or null.
const TypeInfo *find_type(const char *name);

// The same registry over the reference library, libapp_s2j_tree: the library
// built to read every text through cJSON's tree (the static library
// app_s2j_tree_registry, for tests and fuzz targets).
const TypeInfo *tree_registry(size_t *count);
const TypeInfo *find_tree_type(const char *name);

// What cJSON prints, compact or indented, for the tree of the type's emitter:
// of the record at `recs`, or with `as_array` of an array of the n records
// there ("<no text>" where cJSON prints nothing).  The text writers must give
// exactly these bytes.
inline std::string emitter_text(const TypeInfo *t, const char *recs, uint32_t n, bool as_array, bool formatted) {
    cJSON *tree = as_array ? cJSON_CreateArray() : t->hooks->emit(recs);
    for (uint32_t i = 0; as_array && i < n; ++i)
        cJSON_AddItemToArray(tree, t->hooks->emit(recs + static_cast<size_t>(i) * t->desc->size));
    char *p = formatted ? cJSON_Print(tree) : cJSON_PrintUnformatted(tree);
    std::string s = p != nullptr ? p : "<no text>";
    std::free(p);
    cJSON_Delete(tree);
    return s;
}

}  // namespace s2j

#endif  // APP_S2J_REGISTRY_H
