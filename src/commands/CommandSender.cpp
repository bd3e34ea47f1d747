#include "commands/CommandSender.h"

#include "base/ByteText.h"
#include "base/FrameCommand.h"
#include "base/FrameQueue.h"
#include "base/Trace.h"
#include "commands/CommandHistory.h"
#include "commands/CommandLineEdit.h"
#include "commands/CommandSink.h"
#include "commands/KeyboardHost.h"
#include "commands/ScriptNames.h"
#include "config/Settings.h"
#include "connection/EscapeByte.h"
#include "scripts/Rewrites.h"

#include <cstring>

namespace steward {

namespace {

// A sent copy has room for a whole macro line behind "drag", the target and two blanks.
constexpr std::size_t SEND_COPY_SIZE = MACRO_LINE_SIZE + DRAG_TARGET_SIZE + 8;

} // namespace

CommandSender::CommandSender(const CommandParts& parts) : parts_(parts) {}

void CommandSender::PostEnterKey(bool remember)
{
    if (pendingCount_ < PENDING_ENTER_LIMIT) {
        pending_[(pendingFirst_ + pendingCount_) % PENDING_ENTER_LIMIT] = remember;
        ++pendingCount_;
    }
    parts_.Queue.PostCommand(MM_ENTER_KEY);
}

void CommandSender::EnterKey()
{
    bool remember = true;
    if (pendingCount_ > 0) {
        remember = pending_[pendingFirst_];
        pendingFirst_ = (pendingFirst_ + 1) % PENDING_ENTER_LIMIT;
        --pendingCount_;
    }
    EnterKey(remember);
}

void CommandSender::EnterKey(bool remember)
{
    char text[ENTER_LINE_SIZE];
    parts_.Line.GetText(text, sizeof text);
    ContactRewrite(text, sizeof text);
    for (char* c = text; *c; ++c) {
        if (*c == ESC)
            *c = ' ';
    }
    char prefix = parts_.Options.CommandPrefix;
    if (prefix != 0 && text[0] == prefix) {
        RunCommandScript(text);
        return;
    }
    RewriteGo(text);
    SendCommand(text);
    if (remember)
        RememberCommand(text);
    parts_.History.ResetHistoryPosition();
    Trace("Exiting MM_ENTER_KEY\n");
}

void CommandSender::RunCommandScript(const char* text)
{
    RememberCommand(text);
    SetCommandScript(parts_.State, text + 1);
    parts_.Line.SetText("");
    parts_.Queue.PostCommand(MM_RUN_SCRIPT);
    parts_.Sink.EchoCommand(text);
    parts_.History.ResetHistoryPosition();
}

void CommandSender::RewriteGo(char* text) const
{
    const char* target = parts_.State.DragTarget;
    if (target[0] == 0 || !StartsWithNoCase(text, "GO "))
        return;
    char rewritten[ENTER_LINE_SIZE];
    JoinCut(rewritten, sizeof rewritten, {"drag ", target, " ", text + 3});
    std::memcpy(text, rewritten, std::strlen(rewritten) + 1);
}

void CommandSender::SendCommand(const char* text)
{
    char copy[SEND_COPY_SIZE];
    CopyCut(copy, sizeof copy, text);
    DragRewrite(copy, sizeof copy, parts_.State.DragTarget);
    parts_.Sink.EchoCommand(copy);
    parts_.Sink.SetEchoPending();
    parts_.Sink.SendLine(copy);
    parts_.History.ResetHistoryPosition();
    parts_.Line.SetText("");
    parts_.Line.SetFocus();
    parts_.Sink.RecordCommand(copy);
}

void CommandSender::SendScripted(const char* text)
{
    parts_.Sink.SetEchoPending();
    parts_.Sink.EchoCommand(text);
    parts_.Sink.SendLine(text);
    parts_.Line.SetFocus();
}

void CommandSender::SetCommandLine(const char* text, int caret)
{
    parts_.Line.SetText(text);
    parts_.Line.SetSelection(caret, caret);
}

void CommandSender::RememberCommand(const char* text)
{
    parts_.History.RememberCommand(text, parts_.Options.MinCommandLength);
}

} // namespace steward
