#pragma once

#include "commands/CommandParts.h"

#include <cstddef>

namespace steward {

// MM_ENTER_KEY reads at most 511 characters of the command line.
constexpr std::size_t ENTER_LINE_SIZE = 512;
// A macro's Enter and {save} read at most 1022 characters.
constexpr std::size_t MACRO_LINE_SIZE = 1023;
// Enter keys posted and not yet served; more than a few cannot wait at once.
constexpr int PENDING_ENTER_LIMIT = 16;

// The road of a finished line: MM_ENTER_KEY, the full road to the game and the short one.
class CommandSender {
  public:
    explicit CommandSender(const CommandParts& parts);

    // Posts MM_ENTER_KEY; remember is its lParam, kept here until the frame serves it.
    void PostEnterKey(bool remember);
    // Serves MM_ENTER_KEY with the lParam of the oldest posted Enter (1 when none is known).
    void EnterKey();
    void EnterKey(bool remember);
    // The full road: drag rewrite, echo, send, history position, empty line, record.
    void SendCommand(const char* text);
    // The short road of a script line: echo and send only.
    void SendScripted(const char* text);
    void SetCommandLine(const char* text, int caret);
    // RememberCommand with the MinCommandLength of the options.
    void RememberCommand(const char* text);

  private:
    void RunCommandScript(const char* text);
    void RewriteGo(char* text) const;

    CommandParts parts_;
    bool pending_[PENDING_ENTER_LIMIT] = {};
    int pendingFirst_ = 0;
    int pendingCount_ = 0;
};

} // namespace steward
