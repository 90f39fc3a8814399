// change.cpp - records of whole documents, their names and differences, and
// replacing a file whole; shared by the update and diff commands.
#include "change.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>

#include "registry.h"

namespace app_s2j_tool {

int load_all(const s2j::TypeInfo &t, const std::string &text, RecordSet *out) {
    const size_t size = t.desc->size;
    out->bytes.clear();
    Loaded l;
    int rc = load(t, text, &l, [&](const char *recs, uint32_t count) {
        out->bytes.insert(out->bytes.end(), recs, recs + size * count);
        return true;
    });
    out->is_array = l.is_array;
    out->count = l.count;
    return rc;
}

namespace {

// The record as the library's emitter writes it; never null.
struct Emitted {
    cJSON *tree;
    Emitted(const s2j::TypeInfo &t, const char *rec) : tree(t.hooks->emit(rec)) {
        if (tree == nullptr) throw std::bad_alloc();
    }
    ~Emitted() { cJSON_Delete(tree); }
    Emitted(const Emitted &) = delete;
    Emitted &operator=(const Emitted &) = delete;
};

std::string printed(const cJSON *item) {
    char *p = item != nullptr ? cJSON_PrintUnformatted(item) : nullptr;
    if (item != nullptr && p == nullptr) throw std::bad_alloc();
    std::string s = p != nullptr ? p : "";
    cJSON_free(p);
    return s;
}

const cJSON *member(const cJSON *object, const char *key) {
    for (const cJSON *c = object->child; c != nullptr; c = c->next)
        if (c->string != nullptr && std::strcmp(c->string, key) == 0) return c;
    return nullptr;
}

}  // namespace

bool matched_by_key(const s2j::TypeInfo &t, bool is_array) { return is_array && t.desc->key_count > 0; }

std::string record_name(const s2j::TypeInfo &t, const char *rec, bool is_array, uint32_t index) {
    if (!is_array) return "the record";
    if (!matched_by_key(t, is_array)) return "record " + std::to_string(static_cast<uint64_t>(index) + 1);
    Emitted e(t, rec);
    std::string name;
    for (uint32_t i = 0; i < t.desc->key_count; ++i) {
        const char *key = t.desc->keys[i].field.key;
        name += (i ? " " : "") + std::string(key) + "=" + printed(member(e.tree, key));
    }
    return name;
}

std::string key_of(const s2j::TypeInfo &t, const char *rec) {
    std::string k;
    for (uint32_t i = 0; i < t.desc->key_count; ++i) {
        const s2j::Field &f = t.desc->keys[i].field;
        const char *p = rec + f.offset;
        if (f.kind == s2j::Kind::Str)
            k.append(p, strnlen(p, f.size)).push_back('\0');
        else
            k.append(p, f.size);
    }
    return k;
}

std::string field_changes(const s2j::TypeInfo &t, const char *a, const char *b) {
    if (std::memcmp(a, b, t.desc->size) == 0) return "";
    Emitted ea(t, a), eb(t, b);
    std::string out;
    for (uint32_t i = 0; i < t.desc->field_count; ++i) {
        const char *key = t.desc->fields[i].key;
        std::string va = printed(member(ea.tree, key)), vb = printed(member(eb.tree, key));
        if (va != vb) out += "  " + std::string(key) + ": " + va + " -> " + vb + "\n";
    }
    return out;
}

namespace {

bool failed(const std::string &what, const std::string &path, int err, std::string *why) {
    *why = "cannot " + what + " '" + path + "': " + std::strerror(err);
    return false;
}

bool write_all(int fd, const std::string &text) {
    size_t done = 0;
    while (done < text.size()) {
        ssize_t n = write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            if (n == 0) errno = EIO;
            return false;
        }
        done += static_cast<size_t>(n);
    }
    return true;
}

}  // namespace

bool replace_file(const std::string &path, const std::string &text, std::string *why) {
    char resolved[PATH_MAX];
    if (realpath(path.c_str(), resolved) == nullptr) return failed("find", path, errno, why);
    const std::string target = resolved;
    struct stat st;
    if (stat(target.c_str(), &st) != 0) return failed("find", path, errno, why);
    if (!S_ISREG(st.st_mode)) return failed("replace", path, EINVAL, why);
    const size_t slash = target.rfind('/');
    const std::string dir = slash == 0 ? "/" : target.substr(0, slash);
    std::string temp = target.substr(0, slash + 1) + "." + target.substr(slash + 1) + ".XXXXXX";
    int fd = mkstemp(&temp[0]);
    const std::string kept = "; '" + path + "' is left as it was";
    if (fd < 0) {
        failed("create a new file beside", path, errno, why);
        *why += kept;
        return false;
    }
    // Until the rename, a failure removes the new file and leaves the old one.
    auto abandon = [&](const char *what) {
        int err = errno;
        if (fd >= 0) close(fd);
        unlink(temp.c_str());
        failed(what, temp, err, why);
        *why += kept;
        return false;
    };
    if (fchmod(fd, st.st_mode & 07777) != 0) return abandon("set the permissions of the new file");
    if (!write_all(fd, text)) return abandon("write the new file");
    if (fsync(fd) != 0) return abandon("sync the new file");
    int rc = close(fd);
    fd = -1;
    if (rc != 0) return abandon("close the new file");
    if (rename(temp.c_str(), target.c_str()) != 0) return abandon("rename the new file");
    // The rename is on disk once the directory is.
    int dfd = open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dfd < 0 || fsync(dfd) != 0) {
        int err = errno;
        if (dfd >= 0) close(dfd);
        *why = "'" + path + "' was replaced, but its directory could not be synced (" + std::strerror(err) +
               "): a power cut may still bring back the old file";
        return false;
    }
    close(dfd);
    return true;
}

}  // namespace app_s2j_tool
