#pragma once

#include "analysis/LinePipeline.h"
#include "base/FrameQueue.h"
#include "commands/CommandSink.h"
#include "connection/Connection.h"
#include "connection/GameSocket.h"
#include "connection/PacketDump.h"
#include "connection/StreamDecoder.h"
#include "scripts/ScriptRecorder.h"
#include "session/ReconnectPlan.h"
#include "terminal/ChildWindows.h"

#include <cstddef>

namespace steward {

// The one road between the game's socket and the program: received blocks go through the
// decoder into the line pipeline, finished commands go out through the connection. The Qt
// socket reports to it directly, and tests and benchmarks feed it the same way.
class GameLink : public SocketListener, public CommandSink {
  public:
    GameLink(const LinePipeline::Parts& parts, PacketDump& dump, GameSocket& socket);

    // 0 when connected, else a ConnectResult; a fresh connection asks for the status record
    // mode again, and a later drop may be tried again.
    int ConnectToGame(const char* connectionString);
    void ShutdownConnection() { connection_.ShutdownConnection(); }
    bool IsDisconnected() const { return connection_.IsDisconnected(); }
    // Once the server sends status records, a block's tail waits for its line end.
    void SetHoldPartialLines(bool hold) { decoder_.SetHoldPartialLines(hold); }

    LinePipeline& Pipeline() { return pipeline_; }
    // Whether and when to connect again after a drop; every sent "quit" reaches it.
    ReconnectPlan& Reconnect() { return reconnect_; }
    void PrintToGameWindow(const char* text) { pipeline_.PrintToWindow(windows_.GameWindow, text); }

    // SocketListener.
    std::size_t BlockSize() const override { return decoder_.ReceiveChunkSize(); }
    void ReceiveBlock(const char* bytes, std::size_t length) override;
    void ConnectionClosed() override { queue_.PostDropped(); }

    // CommandSink.
    void EchoCommand(const char* text) override { pipeline_.EchoCommand(text); }
    void SetEchoPending() override { pipeline_.Prompt().EchoPending = true; }
    void SendLine(const char* text) override;
    void RecordCommand(const char* text) override
    {
        if (recording_)
            recording_->RecordCommand(text);
    }
    // The scripts, which record the sent commands while a recording is open.
    void SetRecording(CommandRecording* recording) { recording_ = recording; }

  private:
    FrameQueue& queue_;
    const ChildWindows& windows_;
    LinePipeline pipeline_;
    StreamDecoder decoder_;
    Connection connection_;
    CommandRecording* recording_ = nullptr;
    ReconnectPlan reconnect_;
};

} // namespace steward
