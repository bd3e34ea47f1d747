#pragma once

#include "analysis/LinePipeline.h"
#include "config/BufferedLog.h"
#include "config/Settings.h"
#include "panels/StatusPanel.h"
#include "scripts/ScriptWait.h"
#include "session/ChildWindows.h"
#include "session/FrameQueue.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace steward::testing {

// Windows are only told apart by address here; the recording host never looks inside them.
struct WindowTags {
    alignas(std::max_align_t) unsigned char game[1];
    alignas(std::max_align_t) unsigned char thought[1];
    alignas(std::max_align_t) unsigned char arrival[1];
};

struct Appended {
    const AnsiWindow* window;
    std::string text;
};

class RecordingHost : public LineHost {
  public:
    void AppendText(AnsiWindow& window, const char* text) override
    {
        appended.push_back({&window, text});
    }
    void ApplyHighlights(char* text, std::size_t capacity) override
    {
        highlighted.emplace_back(text);
        lastCapacity = capacity;
    }
    bool IsNameListed(const char* name) override
    {
        for (const std::string& listed : names)
            if (listed == name)
                return true;
        return false;
    }

    std::vector<Appended> appended;
    std::vector<std::string> highlighted;
    std::vector<std::string> names;
    std::size_t lastCapacity = 0;
};

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

class PipelineTest : public ::testing::Test {
  protected:
    PipelineTest()
    {
        windows.GameWindow = Game();
        sessionLog.OpenNew(logPath.c_str());
    }

    AnsiWindow* Game() { return reinterpret_cast<AnsiWindow*>(tags.game); }
    AnsiWindow* Thought() { return reinterpret_cast<AnsiWindow*>(tags.thought); }
    AnsiWindow* Arrival() { return reinterpret_cast<AnsiWindow*>(tags.arrival); }

    // Texts that reached one window, in order.
    std::vector<std::string> In(AnsiWindow* window) const
    {
        std::vector<std::string> texts;
        for (const Appended& a : host.appended)
            if (a.window == window)
                texts.push_back(a.text);
        return texts;
    }

    // Everything the session log took so far.
    std::string Logged()
    {
        sessionLog.Flush();
        return ReadBytes(logPath);
    }

    WindowTags tags;
    RecordingHost host;
    RecordingQueue queue;
    FixedClock clock;
    Settings options;
    TempFolder folder;
    std::string logPath = folder.File("Session.Log");
    BufferedLog sessionLog;
    ChildWindows windows;
    ScriptWaitState script;
    StatusPanel panel;
    LinePipeline pipeline{{host, options, sessionLog, windows, queue, script, panel, clock, nullptr}};
};

} // namespace steward::testing
