// registry_tree.cpp - the registry of the reference library: the same types
// and family members, each calling the member of libapp_s2j_tree, the build
// of the library that reads every text through cJSON's tree.  The tests and
// fuzz targets compare the two libraries on the same inputs.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

#include "registry.h"

namespace s2j {
namespace {

void *tree_library() {
    static void *handle = [] {
        void *h = dlopen(APP_S2J_TREE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        if (h == nullptr) {
            std::fprintf(stderr, "cannot load the reference library: %s\n", dlerror());
            std::abort();
        }
        return h;
    }();
    return handle;
}

}  // namespace

// Loads the reference library when its registry is first asked for, so that
// calls through it allocate nothing of their own later.
void open_tree_library() { tree_library(); }

// A member of the reference library, as the exact type of the library's own.
template <class Fn>
Fn tree_function(const char *name) {
    void *f = dlsym(tree_library(), name);
    if (f == nullptr) {
        std::fprintf(stderr, "the reference library lacks %s\n", name);
        std::abort();
    }
    return reinterpret_cast<Fn>(f);
}

}  // namespace s2j

#define S2J_CALL(fn) ([] { static const auto f = ::s2j::tree_function<decltype(&fn)>(#fn); return f; }())
#define S2J_REG_NS tree_reg
#define S2J_REGISTRY tree_registry
#define S2J_FIND_TYPE find_tree_type
#define S2J_REGISTRY_OPEN() open_tree_library()
#include "registry.cpp"
