#pragma once

#include <cstddef>
#include <string>

class QWidget;

namespace steward {

// The questions of the highlight sheet, and of any other dialog that asks for one line: the
// desktop serves them, tests answer from lists.
class HighlightDialogs {
  public:
    virtual ~HighlightDialogs() = default;
    // Asks for one line of text under the title, its field filled with answer: false on Cancel;
    // the answer holds at most capacity - 1 characters.
    virtual bool AskString(QWidget* parent, const char* title, char* answer,
                           std::size_t capacity) = 0;
    // The sound chooser, starting in the sound folder: a path, or empty.
    virtual std::string ChooseSoundFile(QWidget* parent, const std::string& folder) = 0;
};

} // namespace steward
