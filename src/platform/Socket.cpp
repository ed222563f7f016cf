#include "platform/Socket.h"

#if !defined(_WIN32)
#include <cerrno>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace ombrivane {

#if defined(_WIN32)

Socket newSocket(int family, int kind, int protocol) {
    return ::WSASocketW(family, kind, protocol, nullptr, 0, WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
}

Socket duplicateOf(Socket socket) {
    WSAPROTOCOL_INFOW described{};
    if (::WSADuplicateSocketW(socket, ::GetCurrentProcessId(), &described) != 0) return noSocket;
    return ::WSASocketW(FROM_PROTOCOL_INFO,
                        FROM_PROTOCOL_INFO,
                        FROM_PROTOCOL_INFO,
                        &described,
                        0,
                        WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
}

bool isSilent(Socket socket) {
    u_long doesNotWait = 1;
    char byte = 0;
    return ::ioctlsocket(socket, FIONBIO, &doesNotWait) == 0 && ::recv(socket, &byte, 1, MSG_PEEK) < 0 &&
           ::WSAGetLastError() == WSAEWOULDBLOCK;
}

void closeSocket(Socket socket) { ::closesocket(socket); }

#else

Socket newSocket(int family, int kind, int protocol) {
    // Systems that lack the flag start no programs from an application.
#ifdef SOCK_CLOEXEC
    kind |= SOCK_CLOEXEC;
#endif
    return ::socket(family, kind, protocol);
}

Socket duplicateOf(Socket socket) { return ::fcntl(socket, F_DUPFD_CLOEXEC, 0); }

bool isSilent(Socket socket) {
    char byte = 0;
    const auto read = ::recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT);
    return read < 0 && (errno == EAGAIN || errno == EWOULDBLOCK);
}

void closeSocket(Socket socket) { ::close(socket); }

#endif

} // namespace ombrivane
