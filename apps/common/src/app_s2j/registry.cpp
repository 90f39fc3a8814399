// registry.cpp - builds the type registry from the instantiation lists
// themselves: both lists are read once more here with every S2J_DEF_* macro
// defined to record which family members a type has and on which line, so
// the registry cannot disagree with what the library exports.
#define S2J_REGISTRY_PASS
#include "registry.h"

// This file also builds the registry of the reference library (its own
// translation unit defines these four names before including this one).
#ifndef S2J_CALL
#define S2J_CALL(fn) fn  // the family members of the library itself
#define S2J_REG_NS reg
#define S2J_REGISTRY registry
#define S2J_FIND_TYPE find_type
#define S2J_REGISTRY_OPEN()  // nothing to load
#endif

#include <cstring>

#include "s2j_families.h"

namespace s2j {

#define S2J_DECLARE_HOOKS(T) extern const TypeHooks hooks_##T;
S2J_TYPES(S2J_DECLARE_HOOKS)
#undef S2J_DECLARE_HOOKS

namespace S2J_REG_NS {
// A family member that the lists do not instantiate for T.
template <class T, Family F>
struct Fam {
    static constexpr std::nullptr_t fn = nullptr;
    static constexpr int line = 0;
};
// The registry's signature of family F's members.
template <Family F>
struct ShapeOf;
#define S2J_SHAPE_OF(Id, member, ...)          \
    template <>                                \
    struct ShapeOf<Family::Id> {               \
        using type = decltype(Families::member); \
    };
S2J_FAMILIES(S2J_SHAPE_OF, T)
#undef S2J_SHAPE_OF
}  // namespace S2J_REG_NS
}  // namespace s2j

// T's member of family F, instantiated on this line; the function must have
// the family's shape.
#define S2J_REG(T, F, f)                                                  \
    namespace s2j::S2J_REG_NS {                                           \
    template <>                                                           \
    struct Fam<T, Family::F> {                                            \
        static constexpr ShapeOf<Family::F>::type fn = f;                 \
        static constexpr int line = __LINE__;                             \
    };                                                                    \
    }
#define S2J_AS(T, p) static_cast<T *>(p)
#define S2J_AS_CONST(T, p) static_cast<const T *>(p)

// Each member as a type-erased function calling the member itself.
#define S2J_DEF_S2J(T) S2J_REG(T, S2J, +[](const void *p, int f) { return S2J_CALL(s2j_##T)(S2J_AS_CONST(T, p), f); })
#define S2J_DEF_C2S(T) S2J_REG(T, C2S, +[](const cJSON *j, void *p) { return S2J_CALL(c2s_##T)(j, S2J_AS(T, p)); })
#define S2J_DEF_J2S(T)                                                                                  \
    S2J_REG(T, J2S, +[](const char *s, void *p) { return S2J_CALL(j2s_##T)(s, S2J_AS(T, p)); })           \
    S2J_REG(T, J2S_LEN,                                                                                  \
            +[](const char *s, size_t n, void *p) { return S2J_CALL(j2s_##T##_with_len)(s, n, S2J_AS(T, p)); })
#define S2J_DEF_S2J_ARRAY(T)                                                                            \
    S2J_REG(T, S2J_ARRAY,                                                                               \
            +[](const void *p, uint32_t n, int f) { return S2J_CALL(s2j_array_##T)(S2J_AS_CONST(T, p), n, f); })
#define S2J_DEF_C2S_ARRAY(T)                                                                            \
    S2J_REG(T, C2S_ARRAY,                                                                               \
            +[](const cJSON *j, void *p, uint32_t *n) { return S2J_CALL(c2s_array_##T)(j, S2J_AS(T, p), n); })
#define S2J_DEF_C2S_ARRAY_UPDATE(T)                                                                     \
    S2J_REG(T, C2S_ARRAY_UPDATE, +[](const cJSON *j, void *p, uint32_t *n) {                            \
        return S2J_CALL(c2s_array_update_##T)(j, S2J_AS(T, p), n);                                      \
    })
#define S2J_DEF_J2S_ARRAY(T)                                                                            \
    S2J_REG(T, J2S_ARRAY,                                                                               \
            +[](const char *s, void *p, uint32_t *n) { return S2J_CALL(j2s_array_##T)(s, S2J_AS(T, p), n); }) \
    S2J_REG(T, J2S_ARRAY_LEN, +[](const char *s, size_t l, void *p, uint32_t *n) {                      \
        return S2J_CALL(j2s_array_##T##_with_len)(s, l, S2J_AS(T, p), n);                               \
    })
#define S2J_DEF_J2S_ARRAY_UPDATE(T)                                                                     \
    S2J_REG(T, J2S_ARRAY_UPDATE, +[](const char *s, void *p, uint32_t *n) {                             \
        return S2J_CALL(j2s_array_update_##T)(s, S2J_AS(T, p), n);                                      \
    })                                                                                                  \
    S2J_REG(T, J2S_ARRAY_UPDATE_LEN, +[](const char *s, size_t l, void *p, uint32_t *n) {               \
        return S2J_CALL(j2s_array_update_##T##_with_len)(s, l, S2J_AS(T, p), n);                        \
    })
#define S2J_DEF_F2S(T) S2J_REG(T, F2S, +[](const char *f, void *p) { return S2J_CALL(f2s_##T)(f, S2J_AS(T, p)); })
#define S2J_DEF_S2F(T) \
    S2J_REG(T, S2F, +[](const char *f, const void *p) { return S2J_CALL(s2f_##T)(f, S2J_AS_CONST(T, p)); })
#define S2J_DEF_F2S_ARRAY(T)                                                                            \
    S2J_REG(T, F2S_ARRAY,                                                                               \
            +[](const char *f, void *p, uint32_t *n) { return S2J_CALL(f2s_array_##T)(f, S2J_AS(T, p), n); })
#define S2J_DEF_S2F_ARRAY(T)                                                                            \
    S2J_REG(T, S2F_ARRAY, +[](const char *f, const void *p, uint32_t n) {                               \
        return S2J_CALL(s2f_array_##T)(f, S2J_AS_CONST(T, p), n);                                       \
    })

#include "app_s2j.cpp"
#include "file2struct_def.cpp"

namespace s2j {
namespace {

using namespace S2J_REG_NS;

template <class T>
constexpr Families families() {
#define S2J_FAMILY_FN(Id, ...) Fam<T, Family::Id>::fn,
#define S2J_FAMILY_LINE(Id, ...) Fam<T, Family::Id>::line,
    return Families{S2J_FAMILIES(S2J_FAMILY_FN, T){S2J_FAMILIES(S2J_FAMILY_LINE, T)}};
#undef S2J_FAMILY_FN
#undef S2J_FAMILY_LINE
}

// The positions that callers and their logs rely on.
template <class T, Family F>
constexpr int line_of = Fam<T, F>::line;
static_assert(line_of<CrontabCapabilitySet, Family::S2J> == 6 && line_of<CrontabCapabilitySet, Family::J2S> == 8);
static_assert(line_of<CrontabParameter, Family::S2J_ARRAY> == 10 &&
              line_of<CrontabParameter, Family::J2S_ARRAY_UPDATE> == 14);
static_assert(line_of<DeviceTime, Family::S2J> == 16 && line_of<DeviceTime, Family::J2S> == 18);
static_assert(line_of<DeviceCapabilitySet, Family::S2J> == 20 && line_of<DeviceCapabilitySet, Family::J2S> == 22);
static_assert(line_of<DeviceInfo, Family::S2J> == 24 && line_of<DeviceInfo, Family::J2S> == 26);
static_assert(line_of<TimeZone, Family::S2J_ARRAY> == 28 && line_of<TimeZone, Family::J2S_ARRAY> == 30);
static_assert(line_of<TimeZoneParameter, Family::S2J> == 32 && line_of<TimeZoneParameter, Family::J2S> == 34);
static_assert(line_of<CrontabCapabilitySet, Family::F2S> == 115);
static_assert(line_of<CrontabParameter, Family::F2S_ARRAY> == 117 &&
              line_of<CrontabParameter, Family::S2F_ARRAY> == 118);
// A _with_len member is defined by its family's line.
static_assert(line_of<DeviceInfo, Family::J2S_LEN> == line_of<DeviceInfo, Family::J2S>);

#define S2J_ROW(T, sub) {#T, &desc_##T, &hooks_##T, families<T>(), sub},
#define S2J_ROW_SYSTEM(T) S2J_ROW(T, "system")
#define S2J_ROW_ACCOUNT(T) S2J_ROW(T, "system")
#define S2J_ROW_MEDIA(T) S2J_ROW(T, "media")
#define S2J_ROW_STREAMING(T) S2J_ROW(T, "streaming")
#define S2J_ROW_NETWORK(T) S2J_ROW(T, "network")
#define S2J_ROW_STORAGE(T) S2J_ROW(T, "storage")
#define S2J_ROW_OUTPUT(T) S2J_ROW(T, "output")

const TypeInfo kRegistry[] = {
    S2J_TYPES_SYSTEM(S2J_ROW_SYSTEM)
    S2J_TYPES_ACCOUNT(S2J_ROW_ACCOUNT)
    S2J_TYPES_MEDIA(S2J_ROW_MEDIA)
    S2J_TYPES_STREAMING(S2J_ROW_STREAMING)
    S2J_TYPES_NETWORK(S2J_ROW_NETWORK)
    S2J_TYPES_STORAGE(S2J_ROW_STORAGE)
    S2J_TYPES_OUTPUT(S2J_ROW_OUTPUT)
};

}  // namespace

const TypeInfo *S2J_REGISTRY(size_t *count) {
    S2J_REGISTRY_OPEN();
    *count = sizeof kRegistry / sizeof kRegistry[0];
    return kRegistry;
}

const TypeInfo *S2J_FIND_TYPE(const char *name) {
    S2J_REGISTRY_OPEN();
    for (const TypeInfo &t : kRegistry)
        if (std::strcmp(t.name, name) == 0) return &t;
    return nullptr;
}

}  // namespace s2j
