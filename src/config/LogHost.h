#pragma once

#include <cstddef>

namespace steward {

// What the save dialog of the session log asks for.
struct SaveFileRequest {
    const char* Folder;
    const char* FileName;
    const char* DefaultExtension;
    const char* FilterName;
    const char* FilterPattern;
    const char* Title;
};

// What the two logs need of the platform: a save dialog, a message box, the beep and a print
// into the Game window.
class LogHost {
  public:
    virtual ~LogHost() = default;

    // Asks for a file name, asking before an existing file is replaced; false on cancel.
    // The chosen path is written NUL-terminated into path, cut to capacity.
    virtual bool AskSaveFileName(const SaveFileRequest& request, char* path,
                                 std::size_t capacity) = 0;
    // A message box that belongs to no window.
    virtual void ShowMessage(const char* text, const char* title) = 0;
    // MessageBeep(-1).
    virtual void Beep() = 0;
    // PrintToWindow with GameWindow.
    virtual void PrintToGameWindow(const char* text) = 0;
};

} // namespace steward
