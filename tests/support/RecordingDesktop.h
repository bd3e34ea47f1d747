#pragma once

#include "highlights/SoundPlayer.h"
#include "session/qt/Desktop.h"
#include "support/RecordingBrowser.h"

#include <QFile>

#include <cstdio>
#include <string>
#include <vector>

namespace steward::test {

// Records the wave files asked for; a file is found when it exists.
class RecordingSoundPlayer : public SoundPlayer {
  public:
    bool PlayFile(const char* path) override
    {
        asked.emplace_back(path);
        return QFile::exists(QString::fromLocal8Bit(path));
    }
    std::vector<std::string> asked;
};

// Dialogs answer as the test says and keep what they were asked; nothing opens on the desktop.
class RecordingDesktop : public Desktop {
  public:
    ConnectChoice AskConnection(QWidget*, std::string& host, int& port) override
    {
        asked.push_back(host + ":" + std::to_string(port));
        host = answerHost;
        port = answerPort;
        return choice;
    }
    bool AskExit(QWidget*) override
    {
        ++exitQuestions;
        return leave;
    }
    void ShowMessage(QWidget*, const char* text, const char* title) override
    {
        messages.push_back(std::string(title ? title : "") + "|" + text);
    }
    bool RunEditor(const std::string& path) override
    {
        edited.push_back(path);
        return editorStarts;
    }
    bool AskSaveFileName(QWidget*, const SaveFileRequest&, char*, std::size_t) override
    {
        return false;
    }
    void Beep() override {}
    // Answers with the next of answers, or cancels when none is left; keeps each title.
    bool AskString(QWidget*, const char* title, char* answer, std::size_t capacity) override
    {
        stringTitles.emplace_back(title);
        if (answers.empty())
            return false;
        std::snprintf(answer, capacity, "%s", answers.front().c_str());
        answers.erase(answers.begin());
        return true;
    }
    bool AskDragTarget(QWidget*, std::string& target) override
    {
        shownTarget = target;
        target = dragTarget;
        return dragOk;
    }
    SoundPlayer& Sounds() override { return sounds; }
    Browser& WebBrowser() override { return browser; }
    std::string PickFolder(QWidget*, const char*) override { return {}; }
    // The script dialogs answer with the files the test names; the folder is kept.
    std::string ChooseScriptFile(QWidget*, const std::string& folder, bool) override
    {
        scriptFolder = folder;
        return scriptFile;
    }
    std::string AskRecordFile(QWidget*, const std::string& folder) override
    {
        scriptFolder = folder;
        return recordFile;
    }
    std::string CreateScript(QWidget*, const std::string&) override { return {}; }
    std::string ChooseSoundFile(QWidget*, const std::string&) override { return {}; }

    RecordingSoundPlayer sounds;
    RecordingBrowser browser;
    ConnectChoice choice = ConnectChoice::Connect;
    std::string answerHost;
    int answerPort = 0;
    bool leave = true;
    int exitQuestions = 0;
    bool editorStarts = true;
    std::string dragTarget;
    std::string shownTarget;
    bool dragOk = true;
    std::string scriptFile;
    std::string recordFile;
    std::string scriptFolder;
    std::vector<std::string> answers;
    std::vector<std::string> stringTitles;
    std::vector<std::string> asked;
    std::vector<std::string> messages;
    std::vector<std::string> edited;
};

} // namespace steward::test
