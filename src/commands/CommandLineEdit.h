#pragma once

#include <cstddef>

namespace steward {

// The most characters the player can type into the command line.
constexpr int COMMAND_LINE_LIMIT = 255;

// The single-line edit control at the bottom of the frame, as core code drives it. It keeps
// its own caret and selection; positions count characters from 0.
class CommandLineEdit {
  public:
    virtual ~CommandLineEdit() = default;

    // Copies the text, at most capacity - 1 characters and a terminator; returns the count.
    virtual std::size_t GetText(char* out, std::size_t capacity) const = 0;
    // Replaces the text and puts the caret at its start.
    virtual void SetText(const char* text) = 0;
    // EM_SETSEL: positions past the end mean the end.
    virtual void SetSelection(int start, int end) = 0;
    // EM_GETSEL: start equals end for a collapsed caret.
    virtual void GetSelection(int& start, int& end) const = 0;
    // A typed byte: replaces the selection, refused beyond COMMAND_LINE_LIMIT.
    virtual void TypeCharacter(char c) = 0;
    // Cut, copy, paste and clear (which deletes the selection only).
    virtual void Cut() = 0;
    virtual void Copy() = 0;
    virtual void Paste() = 0;
    virtual void Clear() = 0;
    virtual void SetFocus() = 0;
};

} // namespace steward
