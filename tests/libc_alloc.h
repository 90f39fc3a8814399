// libc_alloc.h - glibc's own allocator, under the names it exports beside
// malloc and friends, for programs that replace malloc, calloc, realloc and
// free with their own (to count allocations, or to make them fail) and pass
// each call on.
#ifndef APP_S2J_LIBC_ALLOC_H
#define APP_S2J_LIBC_ALLOC_H

#include <cstddef>

extern "C" {
void *__libc_malloc(size_t);
void *__libc_calloc(size_t, size_t);
void *__libc_realloc(void *, size_t);
void __libc_free(void *);
}

#endif
