// rec_storage.cpp - records of storage interfaces and devices, disk groups,
// recording and snapshots: their field tables, emitters, readers and keyword
// readers.
#include "s2j_internal.h"
