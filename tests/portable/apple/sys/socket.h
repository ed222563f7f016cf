// There a socket cannot be kept from programs that are started later as it is made.
#pragma once

#include_next <sys/socket.h>

#undef SOCK_CLOEXEC
