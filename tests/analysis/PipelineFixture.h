#pragma once

#include "base/ColorCode.h"
#include "base/FrameQueue.h"
#include "config/BufferedLog.h"
#include "config/Settings.h"
#include "connection/PacketDump.h"
#include "connection/RecordingSocket.h"
#include "highlights/HighlightStore.h"
#include "panels/StatusPanel.h"
#include "scripts/ScriptWait.h"
#include "scripts/Tokenizer.h"
#include "session/GameLink.h"
#include "support/TempFolder.h"
#include "terminal/AnsiWindow.h"
#include "terminal/ChildWindows.h"
#include "terminal/TextBufferFixture.h"
#include "terminal/WindowFixture.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace steward::testing {

inline std::string On(unsigned char color)
{
    char out[8];
    return std::string(out, AppendColorOn(out, color));
}

inline std::string Off(unsigned char color)
{
    char out[8];
    return std::string(out, AppendColorOff(out, color));
}

class RecordingQueue : public FrameQueue {
  public:
    void PostCommand(int command) override { commands.push_back(command); }
    void PostDropped() override { ++dropped; }
    std::vector<int> commands;
    int dropped = 0;
};

class FixedClock : public LocalClock {
  public:
    TimeOfDay Now() const override { return time; }
    TimeOfDay time{17, 30};
};

class RecordingSounds : public HighlightSounds {
  public:
    void PlayHighlightSound(const char* name) override { played.emplace_back(name); }
    std::vector<std::string> played;
};

// What the panel shows, on one line: gauges as value/max, the round time with "+" while it
// counts, then the coins, the figure's state and the held icons.
inline std::string PanelText(const StatusPanel& panel)
{
    std::string text;
    for (const Gauge* gauge : {&panel.Hp, &panel.Ftg, &panel.Psi, &panel.Web, &panel.Weight})
        text += std::to_string(gauge->GetValue()) + "/" + std::to_string(gauge->GetMax()) + " ";
    return text + "rt " + std::to_string(panel.RT.GetValue()) + "/" +
           std::to_string(panel.RT.GetMax()) + (panel.RT.IsCounting() ? "+" : "") + " $" +
           panel.Silver.Text() + "/" + panel.Gold.Text() + " figure " +
           std::to_string(panel.BodyFigure.GetState()) +
           (panel.WeaponIcon.Held() ? " weapon" : "") + (panel.ShieldIcon.Held() ? " shield" : "");
}

// A status record line: fields in order, then filler up to the closing ESC and the line end.
inline std::string StatusLine(const std::string& fields, std::size_t length = 70,
                              const char* end = "\r\n")
{
    std::string text = "\x1B\x1B" + fields;
    text.resize(length - 3, '0');
    return text + '\x1B' + end;
}

// The game link with real text windows, a real session log and real highlight lists; only the
// socket, the frame's queue, the clock and the sound output are doubles.
struct PipelineRig {
    PipelineRig()
    {
        // Wide enough that no test line wraps.
        host.client = {0, 0, 100000, 105};
        game = AnsiWindow::Create("Game Window", {host, options, nullptr, &pipeline.Prompt()});
        thought = AnsiWindow::Create("Thought Window", {host, options, nullptr, nullptr});
        arrival = AnsiWindow::Create("Arrival Window", {host, options, nullptr, nullptr});
        windows.GameWindow = Game();
        freshLength = steward::test::RingText(game->GetLiveBuffer()).size();
        sessionLog.OpenNew(logPath.c_str());
    }

    AnsiWindow* Game() { return game.get(); }
    AnsiWindow* Thought() { return thought.get(); }
    AnsiWindow* Arrival() { return arrival.get(); }

    // What a window stores behind the line feeds that every fresh window starts with: colour
    // codes and line feeds as they are kept, without carriage returns and bells.
    std::string In(AnsiWindow* window) const
    {
        const std::string text = steward::test::RingText(window->GetLiveBuffer());
        return text.substr(std::min(text.size(), freshLength));
    }

    // Everything the session log took so far.
    std::string Logged()
    {
        sessionLog.Flush();
        return ReadBytes(logPath);
    }

    FakeHost host;
    RecordingQueue queue;
    FixedClock clock;
    RecordingSounds sounds;
    Settings options;
    TempFolder folder;
    std::string logPath = folder.File("Session.Log");
    BufferedLog sessionLog;
    HighlightStore highlights;
    ChildWindows windows;
    ScriptWaitState script;
    StatusPanel panel;
    Tokenizer words;
    RecordingSocket socket;
    PacketDump dump;
    GameLink link{{options, sessionLog, highlights, sounds, windows, queue, script, panel, words,
                   clock, nullptr},
                  dump,
                  socket};
    LinePipeline& pipeline = link.Pipeline();
    std::unique_ptr<AnsiWindow> game;
    std::unique_ptr<AnsiWindow> thought;
    std::unique_ptr<AnsiWindow> arrival;
    std::size_t freshLength = 0;
};

class PipelineTest : public ::testing::Test, public PipelineRig {};

} // namespace steward::testing
