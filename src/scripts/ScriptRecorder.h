#pragma once

#include "config/AtomicFile.h"

#include <optional>

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

// The recording of sent commands as a script, one line per command. The lines go to a
// temporary beside the file, which replaces the file only when the recording ends, so a full
// disk or a kill leaves the old script or the whole new one.
class ScriptRecorder {
  public:
    ScriptRecorder() = default;
    // At program end the recording is kept, without a word.
    ~ScriptRecorder();
    ScriptRecorder(const ScriptRecorder&) = delete;
    ScriptRecorder& operator=(const ScriptRecorder&) = delete;

    bool Recording() const { return file_.has_value(); }
    // Starts a recording that will replace the file; false when it cannot be created.
    bool StartRecording(const char* path);
    // Puts the recording in place of the file; false, with the message of a failed write,
    // when it could not, and then the old file stays.
    bool StopRecording(ScriptHost& host);
    // A move word becomes "move", a "#" text a comment, anything else "put". A failed write
    // ends the recording with a message.
    void RecordCommand(const char* text, Tokenizer& words, ScriptHost& host);

  private:
    std::optional<AtomicFile> file_;
};

} // namespace steward
