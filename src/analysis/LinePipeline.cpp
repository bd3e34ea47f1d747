#include "analysis/LinePipeline.h"

#include "base/ByteText.h"
#include "base/ColorCode.h"
#include "base/FrameCommand.h"
#include "base/FrameQueue.h"
#include "config/BufferedLog.h"
#include "config/Settings.h"
#include "connection/EscapeByte.h"
#include "scripts/ScriptWait.h"
#include "terminal/AnsiWindow.h"
#include "terminal/ChildWindows.h"

namespace steward {

namespace {

constexpr char BEL = 0x07;

bool IsHiddenByte(char c)
{
    return c == BEL || IsColorCode(static_cast<unsigned char>(c));
}

} // namespace

LinePipeline::LinePipeline(const Parts& parts)
    : options_(parts.Options), sessionLog_(parts.SessionLog), highlights_(parts.Highlights),
      sounds_(parts.Sounds), windows_(parts.Windows), queue_(parts.Queue), script_(parts.Script),
      panel_(parts.Panel), words_(parts.Words), clock_(parts.Clock), frame_(parts.Frame),
      speech_(parts.Speech), ColoredCopy(new char[LINE_COPY_SIZE]()),
      PlainCopy(new char[LINE_COPY_SIZE]())
{
}

void LinePipeline::ProcessGameLine(const char* text)
{
    // PlainCopy still holds the previous line here, so the request goes out one line late.
    if (!StatusModeRequested && Contains(PlainCopy.get(), "Obvious")) {
        StatusModeRequested = true;
        queue_.PostCommand(CMD_RESET_STEWARD_MODE);
    }

    CopyCut(ColoredCopy.get(), LINE_COPY_SIZE, text);
    char* plain = PlainCopy.get();
    for (const char* c = ColoredCopy.get(); *c; ++c)
        if (!IsHiddenByte(*c))
            *plain++ = *c;
    *plain = '\0';

    if (PlainCopy[0] == '\0')
        return;
    if (PlainCopy[0] == ESC && PlainCopy[1] == ESC) {
        StatusModeRequested = true;
        ParseStatusRecord(PlainCopy.get());
        return;
    }
    sessionLog_.Write(PlainCopy.get());
    if (StartsWith(PlainCopy.get(), " **") && HandleStarLine(ColoredCopy.get(), LINE_COPY_SIZE))
        return;
    if (CompressThought(PlainCopy.get()))
        return;
    ShowGameLine(ColoredCopy.get());
}

void LinePipeline::ShowGameLine(char* line)
{
    if (line[0] == '\0')
        return;
    if (script_.ScriptWait == WAIT_TEXT && Contains(line, script_.WaitText))
        script_.ScriptWait = WAIT_NONE;
    prompt_.EchoPending = false;
    SendToWindow(windows_.GameWindow, line, LINE_COPY_SIZE);
}

void LinePipeline::SendToWindow(AnsiWindow* window, char* text, std::size_t capacity)
{
    if (!window)
        return;
    FilterLine(text, capacity);
    window->AppendText(text);
}

void LinePipeline::PrintToWindow(AnsiWindow* window, const char* text)
{
    char copy[PRINT_BUFFER_SIZE];
    CopyCut(copy, sizeof copy, text);
    SendToWindow(window, copy, sizeof copy);
}

void LinePipeline::EchoCommand(const char* text)
{
    if (!options_.LocalEcho)
        return;
    sessionLog_.Write(text);
    prompt_.EchoPending = true;
    if (!windows_.GameWindow)
        return;
    windows_.GameWindow->AppendText(text);
    windows_.GameWindow->AppendText("\r\n");
}

} // namespace steward
