// s2j_files.h - the engine of the file families (s2j_files.cpp): whole texts
// move between a file and the text families, which do all the converting.
// Each call opens and closes its file within the call.
#ifndef APP_S2J_FILES_H
#define APP_S2J_FILES_H

#include "s2j_families.h"

namespace s2j {

// f2s_T: reads the whole file at fine_name and hands its text to j2s, the
// type's j2s_T; returns its status.  -2 with the diagnostic "fine_name is
// empty!" when fine_name is null; -15, silently, when the file cannot be
// opened (or is a directory) or its text cannot be held.
int file_f2s(Site s, const char *type, const char *fine_name, void *rec, int (*j2s)(const char *, void *));

// f2s_array_T: the same with j2s_array_T, which fills arr and *count (or
// only *count when arr is null).
int file_f2s_array(Site s, const char *type, const char *fine_name, void *arr, uint32_t *count,
                   int (*j2s_array)(const char *, void *, uint32_t *));

// s2f_T and s2f_array_T: writes the text that make_text makes of count
// records at data (null from it gives -15) to fine_name in place, then syncs
// and closes the file; -2 with the diagnostic when fine_name is null, -7
// after perror("fopen") or perror("fwrite") when the file cannot be opened
// or is written short.
int file_s2f(Site s, const char *type, const char *fine_name, char *(*make_text)(const void *, uint32_t),
             const void *data, uint32_t count);

}  // namespace s2j

#endif  // APP_S2J_FILES_H
