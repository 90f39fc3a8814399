// s2j_keys.h - how keys compare: cJSON's rule, which the record readers
// follow, and the compile-time test for two keys of a table equal but for
// letter case.
#ifndef APP_S2J_KEYS_H
#define APP_S2J_KEYS_H

#include <cctype>
#include <cstddef>
#include <cstring>

#include "s2j_model.h"

namespace s2j {

// cJSON's rule for keys, which the record reader follows: equal when every
// byte is equal after tolower(), up to and including the NUL.  Bytes that
// are equal need no tolower().
inline bool same_key(const char *a, const char *b) {
    if (std::strcmp(a, b) == 0) return true;  // the usual case, and the quickest test
    for (;; ++a, ++b) {
        unsigned char x = static_cast<unsigned char>(*a), y = static_cast<unsigned char>(*b);
        if (x != y && std::tolower(x) != std::tolower(y)) return false;
        if (x == '\0') return true;
    }
}

constexpr char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool same_but_case(const char *a, const char *b) {
    for (;; ++a, ++b) {
        if (ascii_lower(*a) != ascii_lower(*b)) return false;
        if (*a == '\0') return true;
    }
}

constexpr bool has_keys_equal_but_for_case(const Field *f, size_t n) {
    for (size_t i = 0; i < n; ++i)
        for (size_t j = i + 1; j < n; ++j)
            if (same_but_case(f[i].key, f[j].key)) return true;
    return false;
}

}  // namespace s2j

#endif  // APP_S2J_KEYS_H
