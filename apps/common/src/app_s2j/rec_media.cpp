// rec_media.cpp - records of video and audio inputs, their status, video and
// audio encoders and encoder on-screen text: their field tables, emitters,
// readers and keyword readers.
#include "s2j_internal.h"
