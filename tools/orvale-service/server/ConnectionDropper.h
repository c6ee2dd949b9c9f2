#pragma once

#include <string>

namespace orvale_service {

// Cuts a client's connection with no answer at all, the way a crashed proxy would. The HTTP
// library gives a handler no handle on its socket, so the socket is found among the process's
// descriptors by its two addresses and shut down; the library then fails to answer and closes it.
class ConnectionDropper {
public:
    static bool drop(const std::string& remoteAddress, int remotePort, int localPort);
};

}  // namespace orvale_service
