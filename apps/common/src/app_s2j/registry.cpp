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
enum Family { kS2j, kC2s, kJ2s, kS2jArray, kC2sArray, kC2sArrayUpdate, kJ2sArray, kJ2sArrayUpdate,
              kF2s, kS2f, kF2sArray, kS2fArray };
// A family member that the lists do not instantiate for T.
template <class T, int F>
struct Fam {
    static constexpr std::nullptr_t fn = nullptr, fn_with_len = nullptr;
    static constexpr int line = 0;
};
}  // namespace S2J_REG_NS
}  // namespace s2j

#define S2J_REG(T, F, f1, f2)                          \
    namespace s2j::S2J_REG_NS {                               \
    template <>                                        \
    struct Fam<T, F> {                                 \
        static constexpr auto fn = f1;                 \
        static constexpr auto fn_with_len = f2;        \
        static constexpr int line = __LINE__;          \
    };                                                 \
    }
#define S2J_AS(T, p) static_cast<T *>(p)
#define S2J_AS_CONST(T, p) static_cast<const T *>(p)

// Each member as a type-erased function calling the member itself.
#define S2J_DEF_S2J(T) \
    S2J_REG(T, kS2j, +[](const void *p, int f) { return S2J_CALL(s2j_##T)(S2J_AS_CONST(T, p), f); }, nullptr)
#define S2J_DEF_C2S(T) \
    S2J_REG(T, kC2s, +[](const cJSON *j, void *p) { return S2J_CALL(c2s_##T)(j, S2J_AS(T, p)); }, nullptr)
#define S2J_DEF_J2S(T)                                                                              \
    S2J_REG(T, kJ2s, +[](const char *s, void *p) { return S2J_CALL(j2s_##T)(s, S2J_AS(T, p)); },      \
            +[](const char *s, size_t n, void *p) { return S2J_CALL(j2s_##T##_with_len)(s, n, S2J_AS(T, p)); })
#define S2J_DEF_S2J_ARRAY(T)                                                                        \
    S2J_REG(T, kS2jArray,                                                                           \
            +[](const void *p, uint32_t n, int f) { return S2J_CALL(s2j_array_##T)(S2J_AS_CONST(T, p), n, f); }, \
            nullptr)
#define S2J_DEF_C2S_ARRAY(T)                                                                        \
    S2J_REG(T, kC2sArray,                                                                           \
            +[](const cJSON *j, void *p, uint32_t *n) { return S2J_CALL(c2s_array_##T)(j, S2J_AS(T, p), n); }, \
            nullptr)
#define S2J_DEF_C2S_ARRAY_UPDATE(T)                                                                 \
    S2J_REG(T, kC2sArrayUpdate,                                                                     \
            +[](const cJSON *j, void *p, uint32_t *n) {                                             \
                return S2J_CALL(c2s_array_update_##T)(j, S2J_AS(T, p), n);                          \
            },                                                                                      \
            nullptr)
#define S2J_DEF_J2S_ARRAY(T)                                                                        \
    S2J_REG(T, kJ2sArray,                                                                           \
            +[](const char *s, void *p, uint32_t *n) { return S2J_CALL(j2s_array_##T)(s, S2J_AS(T, p), n); }, \
            +[](const char *s, size_t l, void *p, uint32_t *n) {                                    \
                return S2J_CALL(j2s_array_##T##_with_len)(s, l, S2J_AS(T, p), n);                   \
            })
#define S2J_DEF_J2S_ARRAY_UPDATE(T)                                                                 \
    S2J_REG(T, kJ2sArrayUpdate,                                                                     \
            +[](const char *s, void *p, uint32_t *n) {                                              \
                return S2J_CALL(j2s_array_update_##T)(s, S2J_AS(T, p), n);                          \
            },                                                                                      \
            +[](const char *s, size_t l, void *p, uint32_t *n) {                                    \
                return S2J_CALL(j2s_array_update_##T##_with_len)(s, l, S2J_AS(T, p), n);            \
            })
#define S2J_DEF_F2S(T) \
    S2J_REG(T, kF2s, +[](const char *f, void *p) { return S2J_CALL(f2s_##T)(f, S2J_AS(T, p)); }, nullptr)
#define S2J_DEF_S2F(T) \
    S2J_REG(T, kS2f, +[](const char *f, const void *p) { return S2J_CALL(s2f_##T)(f, S2J_AS_CONST(T, p)); }, nullptr)
#define S2J_DEF_F2S_ARRAY(T)                                                                        \
    S2J_REG(T, kF2sArray,                                                                           \
            +[](const char *f, void *p, uint32_t *n) { return S2J_CALL(f2s_array_##T)(f, S2J_AS(T, p), n); }, \
            nullptr)
#define S2J_DEF_S2F_ARRAY(T)                                                                        \
    S2J_REG(T, kS2fArray,                                                                           \
            +[](const char *f, const void *p, uint32_t n) {                                         \
                return S2J_CALL(s2f_array_##T)(f, S2J_AS_CONST(T, p), n);                           \
            },                                                                                      \
            nullptr)

#include "app_s2j.cpp"
#include "file2struct_def.cpp"

namespace s2j {
namespace {

using namespace S2J_REG_NS;

template <class T>
constexpr Families families() {
    return Families{
        Fam<T, kS2j>::fn, Fam<T, kC2s>::fn, Fam<T, kJ2s>::fn, Fam<T, kJ2s>::fn_with_len,
        Fam<T, kS2jArray>::fn, Fam<T, kC2sArray>::fn, Fam<T, kJ2sArray>::fn, Fam<T, kJ2sArray>::fn_with_len,
        Fam<T, kC2sArrayUpdate>::fn, Fam<T, kJ2sArrayUpdate>::fn, Fam<T, kJ2sArrayUpdate>::fn_with_len,
        Fam<T, kF2s>::fn, Fam<T, kS2f>::fn, Fam<T, kF2sArray>::fn, Fam<T, kS2fArray>::fn,
        {Fam<T, kS2j>::line, Fam<T, kC2s>::line, Fam<T, kJ2s>::line, Fam<T, kS2jArray>::line,
         Fam<T, kC2sArray>::line, Fam<T, kC2sArrayUpdate>::line, Fam<T, kJ2sArray>::line,
         Fam<T, kJ2sArrayUpdate>::line, Fam<T, kF2s>::line, Fam<T, kS2f>::line, Fam<T, kF2sArray>::line,
         Fam<T, kS2fArray>::line},
    };
}

// The positions that callers and their logs rely on.
static_assert(Fam<CrontabCapabilitySet, kS2j>::line == 6 && Fam<CrontabCapabilitySet, kJ2s>::line == 8);
static_assert(Fam<CrontabParameter, kS2jArray>::line == 10 && Fam<CrontabParameter, kJ2sArrayUpdate>::line == 14);
static_assert(Fam<DeviceTime, kS2j>::line == 16 && Fam<DeviceTime, kJ2s>::line == 18);
static_assert(Fam<DeviceCapabilitySet, kS2j>::line == 20 && Fam<DeviceCapabilitySet, kJ2s>::line == 22);
static_assert(Fam<DeviceInfo, kS2j>::line == 24 && Fam<DeviceInfo, kJ2s>::line == 26);
static_assert(Fam<TimeZone, kS2jArray>::line == 28 && Fam<TimeZone, kJ2sArray>::line == 30);
static_assert(Fam<TimeZoneParameter, kS2j>::line == 32 && Fam<TimeZoneParameter, kJ2s>::line == 34);
static_assert(Fam<CrontabCapabilitySet, kF2s>::line == 115);
static_assert(Fam<CrontabParameter, kF2sArray>::line == 117 && Fam<CrontabParameter, kS2fArray>::line == 118);

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
