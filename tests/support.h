// support.h - helpers shared by the tests: capture of the standard error
// stream, temporary files, and the expected bytes of a diagnostic.
#ifndef APP_S2J_TEST_SUPPORT_H
#define APP_S2J_TEST_SUPPORT_H

#include <string>
#include <vector>

#include "app_s2j.h"
#include "registry.h"

namespace testing_support {

// Redirects file descriptor 2 to a temporary file until text() is called.
class StderrCapture {
public:
    StderrCapture();
    ~StderrCapture();
    // Stops capturing (once) and returns everything written meanwhile.
    std::string text();

private:
    int saved_ = -1;
    int fd_ = -1;
    std::string text_;
    bool done_ = false;
};

// Paths of the instantiation lists as their diagnostics print them.
std::string text_list_file();
std::string file_list_file();

// Every registry type, in registry order.
std::vector<const s2j::TypeInfo *> all_types();

// Whether the library exports a function of that name.
bool exported(const std::string &name);

// The instantiation lines of a registry type's family members (all 0, and a
// test failure, for a name the registry does not know).
const s2j::Families::Lines &lines_of(const char *type);

// The three writes of one diagnostic.
std::string diag(const std::string &file, int line, const std::string &func, const std::string &msg);

// What cJSON itself reports, after failing to parse text, as the place
// where parsing stopped (the rest of the text from there).
std::string parse_reason(const char *text);
std::string parse_reason_with_len(const char *text, size_t len);

// A fresh empty directory for the test, removed with its files at exit.
std::string temp_dir();
std::string read_file(const std::string &path);
void write_file(const std::string &path, const std::string &text);
bool file_exists(const std::string &path);

// Owns a malloc'ed text.
struct Text {
    explicit Text(char *p) : p(p) {}
    ~Text();
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;
    std::string str() const { return p ? std::string(p) : std::string("<null>"); }
    char *p;
};

// Owns a cJSON tree.
struct Tree {
    explicit Tree(cJSON *p) : p(p) {}
    ~Tree() { cJSON_Delete(p); }
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;
    cJSON *p;
};

// While alive, cJSON's allocations fail from the n-th on (counted from 0),
// or only the n-th with `once`; with `refuse_first` the first one (the
// buffer of a text writer, which then prints a tree) fails too.
// Allocations made so far are counted.
class CjsonFaults {
public:
    explicit CjsonFaults(long fail_at, bool once = false, bool refuse_first = false);
    ~CjsonFaults();
    static long allocations();

private:
    CjsonFaults(const CjsonFaults &) = delete;
    CjsonFaults &operator=(const CjsonFaults &) = delete;
};

}  // namespace testing_support

#endif
