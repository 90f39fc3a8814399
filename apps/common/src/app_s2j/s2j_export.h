// s2j_export.h - how the library defines a function of its C interface.
#ifndef APP_S2J_EXPORT_H
#define APP_S2J_EXPORT_H

// Definition of an exported function of the C API: C linkage, and visible
// though the library is built with hidden visibility.  The version script
// (app_s2j.map) then exports it by its prefix.
#define S2J_API extern "C" __attribute__((visibility("default")))

#endif  // APP_S2J_EXPORT_H
