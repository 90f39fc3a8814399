// rec_network.cpp - records of network interfaces, LAN and routes, wireless,
// and serial ports: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"
