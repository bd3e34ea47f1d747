#pragma once

#include "connection/GameSocket.h"

#include <string>
#include <vector>

namespace steward::testing {

// A socket that connects when told to and keeps what was written.
class RecordingSocket : public GameSocket {
  public:
    bool Open(const char* host, std::uint16_t port, int timeout) override
    {
        opened.push_back(std::string(host) + ":" + std::to_string(port) + " " +
                         std::to_string(timeout));
        return accept;
    }
    void Write(const char* bytes, std::size_t length) override { sent.append(bytes, length); }
    void Close() override { ++closes; }

    bool accept = true;
    std::vector<std::string> opened;
    std::string sent;
    int closes = 0;
};

} // namespace steward::testing
