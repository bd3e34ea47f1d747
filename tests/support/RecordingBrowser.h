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
        return answer;
    }
    std::vector<std::string> opened;
    // Whether the browser could be started.
    bool answer = true;
};

} // namespace steward::test
