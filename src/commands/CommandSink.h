#pragma once

namespace steward {

// Where a finished command goes: the echo of the line analysis, the connection and the
// recording. The frame implements it.
class CommandSink {
  public:
    virtual ~CommandSink() = default;

    // LinePipeline::EchoCommand.
    virtual void EchoCommand(const char* text) = 0;
    // Sets the prompt state's EchoPending, so the next prompt is joined to the echo.
    virtual void SetEchoPending() = 0;
    // SendLine of the connection: appends LF and CR; silent without a connection.
    virtual void SendLine(const char* text) = 0;
    // RecordCommand: does nothing unless a recording is open.
    virtual void RecordCommand(const char* text) = 0;
};

} // namespace steward
