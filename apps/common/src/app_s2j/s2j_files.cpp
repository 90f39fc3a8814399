// s2j_files.cpp - the engine of the file families (see s2j_files.h); their
// members are listed in file2struct_def.cpp.
#include "s2j_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "s2j_messages.h"

namespace s2j {
namespace {

// The whole file as a nul-terminated text, or null with *status -15 when the
// file cannot be opened (or is a directory) or its text cannot be held.  The
// size comes from seeking to the end (a file that cannot be sought, or whose
// size does not fit a long, reads as empty); the text ends where reading
// stopped.  The descriptor is read directly: the text's buffer is the one
// allocation.
char *read_text(const char *path, int *status) {
    *status = -15;
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0) return nullptr;
    struct stat st;
    if (fstat(fd, &st) == 0 && S_ISDIR(st.st_mode)) {
        close(fd);  // a directory opens, but holds no text to read
        return nullptr;
    }
    const off_t end = lseek(fd, 0, SEEK_END);
    lseek(fd, 0, SEEK_SET);
    const size_t size = end < 0 || end > LONG_MAX ? 0 : static_cast<size_t>(end);
    char *text = static_cast<char *>(std::malloc(size + 1));
    if (text == nullptr) {
        close(fd);
        return nullptr;
    }
    size_t got = 0;
    while (got < size) {
        const ssize_t n = read(fd, text + got, size - got);
        if (n <= 0) break;
        got += static_cast<size_t>(n);
    }
    text[got] = '\0';
    close(fd);
    *status = 0;
    return text;
}

// Writes text (owned, freed here) to path in place: -15 without text, -7
// when the file cannot be opened or is written short.  The descriptor is
// synced before the stream is closed, as the stream hands it over.
int write_text(const char *path, char *text) {
    if (text == nullptr) return -15;
    FILE *f = std::fopen(path, "w");
    if (f == nullptr) {
        std::perror("fopen");
        std::free(text);
        return -7;
    }
    size_t len = std::strlen(text);
    int rc = 0;
    if (std::fwrite(text, 1, len, f) < len) {
        std::perror("fwrite");
        rc = -7;
    }
    fsync(fileno(f));
    std::fclose(f);
    std::free(text);
    return rc;
}

// A null file name, reported as every file member reports it.
bool no_file_name(Site s, const char *type, const char *fine_name) {
    if (fine_name != nullptr) return false;
    diag(s, type, S2J_MSG_FINE_NAME_EMPTY);
    return true;
}

// The one body of the two readers: the file's whole text, handed to the
// text member that reads it, then freed.
template <class Read>
int read_file(Site s, const char *type, const char *fine_name, Read read) {
    if (no_file_name(s, type, fine_name)) return -2;
    int rc;
    char *text = read_text(fine_name, &rc);
    if (text == nullptr) return rc;
    rc = read(text);
    std::free(text);
    return rc;
}

}  // namespace

// Kept out of line: each of the many members of the list is then a tail call.
__attribute__((noinline)) int file_f2s(Site s, const char *type, const char *fine_name, void *rec,
                                       int (*j2s)(const char *, void *)) {
    return read_file(s, type, fine_name, [&](const char *text) { return j2s(text, rec); });
}

__attribute__((noinline)) int file_f2s_array(Site s, const char *type, const char *fine_name, void *arr,
                                             uint32_t *count, int (*j2s_array)(const char *, void *, uint32_t *)) {
    return read_file(s, type, fine_name, [&](const char *text) { return j2s_array(text, arr, count); });
}

__attribute__((noinline)) int file_s2f(Site s, const char *type, const char *fine_name,
                                       char *(*make_text)(const void *, uint32_t), const void *data, uint32_t count) {
    if (no_file_name(s, type, fine_name)) return -2;
    return write_text(fine_name, make_text(data, count));
}

}  // namespace s2j
