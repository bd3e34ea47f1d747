#pragma once

#include "services/WebAddress.h"

#include <string>
#include <vector>

namespace steward::test {

// Records each address instead of starting a browser.
class RecordingBrowser : public Browser {
  public:
    bool Open(const char* address) override
    {
        opened.emplace_back(address);
        return true;
    }
    std::vector<std::string> opened;
};

} // namespace steward::test
