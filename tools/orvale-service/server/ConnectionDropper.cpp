#include "server/ConnectionDropper.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <filesystem>

namespace orvale_service {
namespace {

bool isConnection(int descriptor, const std::string& remoteAddress, int remotePort, int localPort) {
    sockaddr_in peer{};
    sockaddr_in local{};
    socklen_t peerSize = sizeof peer;
    socklen_t localSize = sizeof local;
    if (getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &peerSize) != 0 ||
        getsockname(descriptor, reinterpret_cast<sockaddr*>(&local), &localSize) != 0 ||
        peer.sin_family != AF_INET) {
        return false;
    }
    char address[INET_ADDRSTRLEN] = {};
    inet_ntop(AF_INET, &peer.sin_addr, address, sizeof address);
    return remoteAddress == address && ntohs(peer.sin_port) == remotePort &&
           ntohs(local.sin_port) == localPort;
}

}  // namespace

bool ConnectionDropper::drop(const std::string& remoteAddress, int remotePort, int localPort) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        int descriptor = -1;
        try {
            descriptor = std::stoi(entry.path().filename().string());
        } catch (const std::exception&) {
            continue;
        }
        if (isConnection(descriptor, remoteAddress, remotePort, localPort)) {
            return shutdown(descriptor, SHUT_RDWR) == 0;
        }
    }
    return false;
}

}  // namespace orvale_service
