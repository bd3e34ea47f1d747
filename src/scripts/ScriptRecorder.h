#pragma once

#include "config/FileHandle.h"

namespace steward {

class ScriptHost;
class Tokenizer;

// Where each command sent on the full road is recorded.
class CommandRecording {
  public:
    virtual ~CommandRecording() = default;
    virtual void RecordCommand(const char* text) = 0;
};

constexpr char SCRIPT_SAVED_TEXT[] = "\r\n[Script file saved.]\r\n";

// The recording of sent commands as a script, one line per command.
class ScriptRecorder {
  public:
    bool Recording() const { return file_ != nullptr; }
    // Opens the file empty, replacing one that exists; false when it cannot be created.
    bool StartRecording(const char* path);
    // Closes the file without a word; the caller says it was saved.
    void StopRecording() { file_.reset(); }
    // A move word becomes "move", a "#" text a comment, anything else "put". A failed write
    // ends the recording with a message.
    void RecordCommand(const char* text, Tokenizer& words, ScriptHost& host);

  private:
    File file_;
};

} // namespace steward
