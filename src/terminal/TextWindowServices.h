#pragma once

#include "config/LogHost.h"

#include <cstddef>
#include <string>

namespace steward {

// What a text window's popup menu needs of the program around it: the frame's commands, the
// save dialog and message box, and the text editor.
class TextWindowServices {
  public:
    virtual ~TextWindowServices() = default;

    // Copy and the Copy Special commands, which the frame serves.
    virtual void ForwardCommand(int command) = 0;
    // Asks for a file name, asking before an existing file is replaced; false on cancel.
    virtual bool AskSaveFileName(const SaveFileRequest& request, char* path,
                                 std::size_t capacity) = 0;
    // A message box that belongs to no window.
    virtual void ShowMessage(const char* text, const char* title) = 0;
    // Opens the file in the text editor, or says that none started.
    virtual void RunNotepad(const std::string& path) = 0;
    // Where the save dialog starts.
    virtual std::string ProgramFolder() const = 0;
};

} // namespace steward
