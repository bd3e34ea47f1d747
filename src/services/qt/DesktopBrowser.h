#pragma once

#include "services/WebAddress.h"

namespace steward {

// The desktop's own browser, for addresses that are already escaped.
class DesktopBrowser : public Browser {
  public:
    bool Open(const char* address) override;
};

} // namespace steward
