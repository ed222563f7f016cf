#pragma once

#include <curl/curl.h>

namespace ombrivane {

/// What the network needs of a system's sockets beyond libcurl, under the same names on each.
using Socket = curl_socket_t;
inline constexpr Socket noSocket = CURL_SOCKET_BAD;

/// A new socket that no program which is started later inherits; `noSocket` where there is none. The three
/// are those of the system's own call.
Socket newSocket(int family, int kind, int protocol);

/// A second handle on the same connection, which lives on when the first is closed; `noSocket` where there is
/// none.
Socket duplicateOf(Socket socket);

/// Whether the other side still holds its end and has said nothing. Does not wait.
bool isSilent(Socket socket);

void closeSocket(Socket socket);

} // namespace ombrivane
