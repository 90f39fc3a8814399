#include "reader_diff.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace reader_diff {

namespace {

// The standard error stream of one call: the C library's stderr stream is
// pointed at a memory buffer for the call (no system call per call, so that
// fuzzing stays fast), and read back after it.
class ErrorStream {
public:
    ErrorStream() : buf_(static_cast<char *>(std::malloc(kSize))) {
        mem_ = fmemopen(buf_, kSize, "w");
        if (mem_ == nullptr) std::abort();
    }
    void begin() {
        std::fflush(stderr);
        std::rewind(mem_);
        saved_ = stderr;
        stderr = mem_;
    }
    std::string end() {
        std::fflush(mem_);
        stderr = saved_;
        long n = std::ftell(mem_);
        return std::string(buf_, n > 0 ? static_cast<size_t>(n) : 0);
    }
    ~ErrorStream() {
        std::fclose(mem_);
        std::free(buf_);
    }
    ErrorStream(const ErrorStream &) = delete;
    ErrorStream &operator=(const ErrorStream &) = delete;

private:
    static constexpr size_t kSize = 8 << 20;  // more than any diagnostic of the inputs compared
    char *buf_;
    FILE *mem_ = nullptr;
    FILE *saved_ = nullptr;
};

ErrorStream &errors() {
    static ErrorStream e;
    return e;
}

// The file that the file members of one comparison read: made with the
// call's text before the two runs and removed after them, so that a process
// that stops without running static destructors (as fuzzers do) leaves no
// file behind.  Both runs read the same name, which their diagnostics print.
class ScratchFile {
public:
    explicit ScratchFile(const std::string &text) {
        char path[] = "/tmp/app_s2j_diff_file_XXXXXX";
        int fd = mkstemp(path);
        if (fd < 0) std::abort();
        close(fd);
        path_ = path;
        FILE *out = std::fopen(path, "wb");
        if (out == nullptr) std::abort();
        std::fwrite(text.data(), 1, text.size(), out);
        std::fclose(out);
    }
    ~ScratchFile() { unlink(path_.c_str()); }
    ScratchFile(const ScratchFile &) = delete;
    ScratchFile &operator=(const ScratchFile &) = delete;
    const char *path() const { return path_.c_str(); }

private:
    std::string path_;
};

std::string &last_file_name() {
    static std::string name;
    return name;
}

bool reads_a_file(Member m) { return m == Member::F2s || m == Member::F2sArray; }

// Where a call's text is placed: its bytes and a NUL end at the last byte
// before a page that cannot be read, so that a reader that reads one byte
// past them stops the process, with or without a sanitizer.  A text longer
// than the region is passed where it is.
class GuardedText {
public:
    GuardedText() : page_(static_cast<size_t>(sysconf(_SC_PAGESIZE))), size_(kPages * page_) {
        void *m = mmap(nullptr, size_ + page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (m == MAP_FAILED) std::abort();
        base_ = static_cast<char *>(m);
        if (mprotect(base_ + size_, page_, PROT_NONE) != 0) std::abort();
    }
    // The n bytes at text and a NUL before the guard page, or null when
    // they do not fit.
    const char *place(const char *text, size_t n) {
        if (n >= size_) return nullptr;
        char *at = base_ + size_ - (n + 1);
        std::memcpy(at, text, n);
        at[n] = '\0';
        return at;
    }

private:
    static constexpr size_t kPages = 256;
    size_t page_, size_;
    char *base_ = nullptr;
};

GuardedText &guarded() {
    static GuardedText g;
    return g;
}

struct Outcome {
    int rc = 0;
    std::vector<char> records;
    uint32_t count = 0;
    std::string err;
    // cJSON's error position after the call: -1 when there is none, else its
    // offset in the text (files: 0, their text is gone).
    long error_at = -1;
};

Outcome run(const s2j::TypeInfo *t, const Call &c, const char *file) {
    Outcome o;
    o.records = c.records;
    o.count = c.capacity;
    void *arr = c.query ? nullptr : o.records.data();
    const bool with_len = c.member == Member::J2sLen || c.member == Member::J2sArrayLen ||
                          c.member == Member::J2sArrayUpdateLen;
    const char *s = guarded().place(c.text.data(), with_len ? c.len : std::strlen(c.text.c_str()));
    if (s == nullptr) s = c.text.c_str();
    const s2j::Families &f = t->fam;
    cJSON_Delete(cJSON_Parse("!"));  // an error position left over from an earlier parse
    errors().begin();
    switch (c.member) {
        case Member::J2s: o.rc = f.j2s(s, arr); break;
        case Member::J2sLen: o.rc = f.j2s_with_len(s, c.len, arr); break;
        case Member::J2sArray: o.rc = f.j2s_array(s, arr, &o.count); break;
        case Member::J2sArrayLen: o.rc = f.j2s_array_with_len(s, c.len, arr, &o.count); break;
        case Member::J2sArrayUpdate: o.rc = f.j2s_array_update(s, arr, &o.count); break;
        case Member::J2sArrayUpdateLen: o.rc = f.j2s_array_update_with_len(s, c.len, arr, &o.count); break;
        case Member::F2s: o.rc = f.f2s(file, arr); break;
        case Member::F2sArray: o.rc = f.f2s_array(file, arr, &o.count); break;
    }
    o.err = errors().end();
    if (const char *e = cJSON_GetErrorPtr())
        o.error_at = c.member == Member::F2s || c.member == Member::F2sArray ? 0 : e - s;
    return o;
}

std::string hex_diff(const std::vector<char> &a, const std::vector<char> &b) {
    for (size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i]) {
            char buf[96];
            std::snprintf(buf, sizeof buf, "record bytes differ first at %zu: %02x against %02x", i,
                          static_cast<unsigned char>(a[i]), static_cast<unsigned char>(b[i]));
            return buf;
        }
    return "";
}

}  // namespace

const char *member_name(Member m) {
    static const char *const names[kMembers] = {"j2s", "j2s_with_len", "j2s_array", "j2s_array_with_len",
                                                "j2s_array_update", "j2s_array_update_with_len", "f2s", "f2s_array"};
    return names[static_cast<int>(m)];
}

bool has(const s2j::TypeInfo *t, Member m) {
    const s2j::Families &f = t->fam;
    switch (m) {
        case Member::J2s: case Member::J2sLen: return f.j2s != nullptr;
        case Member::J2sArray: case Member::J2sArrayLen: return f.j2s_array != nullptr;
        case Member::J2sArrayUpdate: case Member::J2sArrayUpdateLen: return f.j2s_array_update != nullptr;
        case Member::F2s: return f.f2s != nullptr;
        case Member::F2sArray: return f.f2s_array != nullptr;
    }
    return false;
}

const std::string &last_file() { return last_file_name(); }

const s2j::TypeInfo *reference_of(const s2j::TypeInfo *t) { return s2j::find_tree_type(t->name); }

std::string compare(const s2j::TypeInfo *lib, const s2j::TypeInfo *ref, const Call &call) {
    Outcome a, b;
    if (reads_a_file(call.member)) {
        const ScratchFile file(call.text);
        last_file_name() = file.path();
        a = run(lib, call, file.path());
        b = run(ref, call, file.path());
    } else {
        a = run(lib, call, nullptr);
        b = run(ref, call, nullptr);
    }
    std::string what;
    if (a.rc != b.rc) what += "status " + std::to_string(a.rc) + " against " + std::to_string(b.rc) + "; ";
    if (a.count != b.count)
        what += "count " + std::to_string(a.count) + " against " + std::to_string(b.count) + "; ";
    if (a.records != b.records) what += hex_diff(a.records, b.records) + "; ";
    if (a.err != b.err) what += "standard error \"" + a.err + "\" against \"" + b.err + "\"; ";
    if (a.error_at != b.error_at)
        what += "cJSON error position " + std::to_string(a.error_at) + " against " + std::to_string(b.error_at) + "; ";
    if (!what.empty()) what = std::string(lib->name) + " " + member_name(call.member) + ": " + what;
    return what;
}

}  // namespace reader_diff
