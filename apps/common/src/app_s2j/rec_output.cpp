// rec_output.cpp - records of video outputs and display, sources and
// playlists, audio outputs and decoders, screenshots, output OSD and
// watermarks: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"
