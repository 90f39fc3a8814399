// rec_streaming.cpp - records of streaming output and its transports, the
// streaming and web servers, and streaming inputs: their field tables,
// emitters, readers and keyword readers.
#include "s2j_internal.h"
