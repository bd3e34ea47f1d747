#pragma once

#include "highlights/ClipboardHighlights.h"

namespace steward {

// Reads the system clipboard's text, with every character beyond ASCII as "?".
class QtClipboardReader : public ClipboardReader {
  public:
    bool ReadText(std::string& text) override;
};

} // namespace steward
