#pragma once

#include "base/FrameCommand.h"
#include "base/FrameQueue.h"
#include "commands/CommandLineEdit.h"
#include "commands/CommandSink.h"
#include "commands/Keyboard.h"
#include "commands/KeyboardHost.h"
#include "config/Settings.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace steward::test {

// An edit control in memory: caret, selection, clipboard and the typing limit.
class EditLine : public CommandLineEdit {
  public:
    std::size_t GetText(char* out, std::size_t capacity) const override
    {
        std::snprintf(out, capacity, "%s", text.c_str());
        return std::min(text.size(), capacity - 1);
    }
    void SetText(const char* value) override
    {
        text = value;
        start = end = 0;
    }
    void SetSelection(int from, int to) override
    {
        int length = static_cast<int>(text.size());
        start = std::clamp(std::min(from, to), 0, length);
        end = std::clamp(std::max(from, to), 0, length);
    }
    void GetSelection(int& from, int& to) const override { from = start, to = end; }
    void TypeCharacter(char c) override { Replace(std::string(1, c)); }
    void Cut() override { Copy(), Replace(""); }
    void Copy() override { clipboard = start != end ? text.substr(start, end - start) : clipboard; }
    void Paste() override { Replace(clipboard); }
    void Clear() override { Replace(""); }
    void SetFocus() override { ++focused; }

    std::string text, clipboard;
    int start = 0, end = 0, focused = 0, refused = 0;

  private:
    void Replace(const std::string& piece)
    {
        if (text.size() - (end - start) + piece.size() > std::size_t{COMMAND_LINE_LIMIT}) {
            ++refused;
            return;
        }
        text = text.substr(0, start) + piece + text.substr(end);
        start = end = start + static_cast<int>(piece.size());
    }
};

// Every call, in order, as one readable word each.
class RecordingSink : public CommandSink {
  public:
    void EchoCommand(const char* text) override { calls.push_back("echo " + std::string(text)); }
    void SetEchoPending() override { calls.push_back("pending"); }
    void SendLine(const char* text) override
    {
        calls.push_back("send " + std::string(text));
        sent.push_back(text);
    }
    void RecordCommand(const char* text) override
    {
        calls.push_back("record " + std::string(text));
    }
    std::vector<std::string> calls, sent;
};

class RecordingQueue : public FrameQueue {
  public:
    void PostCommand(int command) override { commands.push_back(command); }
    void PostDropped() override {}
    std::vector<int> commands;
};

// Serves each posted MM_ENTER_KEY and keeps the other commands.
inline void ServeEnterKeys(RecordingQueue& queue, CommandSender& sender)
{
    std::vector<int> posted;
    posted.swap(queue.commands);
    for (int command : posted) {
        if (command == MM_ENTER_KEY)
            sender.EnterKey();
        else
            queue.commands.push_back(command);
    }
}

class RecordingHost : public KeyboardHost {
  public:
    bool RestMode() const override { return rest; }
    void SetRestMode(bool on) override { rest = on; }
    void PrintToGameWindow(const char* text) override { printed.push_back(text); }
    void ScrollActiveChild(int code) override { calls.push_back("scroll " + std::to_string(code)); }
    void NextChildWindow() override { calls.push_back("mdinext"); }
    void ToggleGameWindowMaximized() override { calls.push_back("toggle"); }
    bool ScriptRunning() const override { return script; }
    void AbortScript() override { script = false, calls.push_back("abort"); }
    void EndScrollback() override { calls.push_back("endscrollback"); }
    void SetFrameTitle(const char* text) override { title = text; }
    const char* CurrentCharacter() const override { return "Ayla"; }
    void CopyFromActiveChild() override { calls.push_back("copychild"); }
    void PostClose() override { calls.push_back("close"); }
    // Answers from the list; "<cancel>" is a cancelled question.
    bool AskString(const char* text, char* answer, std::size_t capacity) override
    {
        asked.push_back(text);
        if (answers.empty())
            return false;
        std::snprintf(answer, capacity, "%s", answers.front().c_str());
        answers.pop_front();
        return std::string(answer) != "<cancel>";
    }
    void PumpFor(int seconds) override
    {
        calls.push_back("pump " + std::to_string(seconds));
        if (onPump)
            onPump();
    }

    bool rest = false, script = false;
    std::vector<std::string> printed, calls, asked;
    std::deque<std::string> answers;
    std::string title;
    std::function<void()> onPump;
};

// The whole keyboard wired to recording doubles, as the frame wires it to the real windows.
struct KeyboardBench {
    EditLine line;
    RecordingSink sink;
    RecordingQueue queue;
    RecordingHost host;
    Settings options;
    Keyboard keyboard{line, sink, queue, host, options};
    CommandHistory& history = keyboard.History;
    MacroStore& macros = keyboard.Macros;
    CommandState& state = keyboard.State;
    CommandSender& sender = keyboard.Sender;
    MacroPlayer& player = keyboard.Player;
    KeyFilter& filter = keyboard.Filter;

    // Serves what the keys posted, as the frame's switchboard does for MM_ENTER_KEY.
    void ServeQueue() { ServeEnterKeys(queue, sender); }
    void Type(const std::string& text)
    {
        for (char c : text)
            line.TypeCharacter(c);
    }
};

} // namespace steward::test
