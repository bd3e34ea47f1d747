#include "scripts/qt/ScriptControl.h"

#include "base/qt/MessageBoxes.h"
#include "scripts/qt/ScriptDialogs.h"

#include <QApplication>
#include <QCursor>

namespace steward {

namespace {

constexpr char RECORD_FAILED_TEXT[] = "Error creating script file!";
constexpr char RECORD_FAILED_TITLE[] = "Disk Error";

} // namespace

ScriptControl::ScriptControl(ScriptControlParts parts)
    : parts_(std::move(parts)),
      runner_({parts_.Wait, parts_.Names, parts_.Words, parts_.RoundTime, *this})
{
}

ScriptControl::~ScriptControl()
{
    ShowBusyCursor(false);
}

void ScriptControl::RecordCommand(const char* text)
{
    recorder_.RecordCommand(text, parts_.Words, *this);
}

void ScriptControl::RunScript()
{
    runner_.RunScript(parts_.ScriptFolder().c_str());
}

void ScriptControl::ExecuteScript()
{
    const std::string path =
        parts_.Files.ChooseScriptFile(parts_.Parent, parts_.ScriptFolder(), false);
    if (!path.empty())
        runner_.ExecuteFile(path.c_str());
}

void ScriptControl::StopScript()
{
    if (!runner_.Running())
        return;
    runner_.AbortScript();
    parts_.Print(SCRIPT_ABORTED_TEXT);
}

void ScriptControl::RecordScript()
{
    const std::string path = parts_.Files.AskRecordFile(parts_.Parent, parts_.ScriptFolder());
    if (path.empty())
        return;
    if (!recorder_.StartRecording(path.c_str()))
        parts_.Messages.ShowMessage(parts_.Parent, RECORD_FAILED_TEXT, RECORD_FAILED_TITLE);
}

void ScriptControl::StopRecording()
{
    if (recorder_.StopRecording(*this))
        parts_.Print(SCRIPT_SAVED_TEXT);
}

std::string ScriptControl::ChooseScriptToEdit()
{
    return parts_.Files.ChooseScriptFile(parts_.Parent, parts_.ScriptFolder(), true);
}

std::string ScriptControl::CreateScript()
{
    return parts_.Files.CreateScript(parts_.Parent, parts_.ScriptFolder());
}

void ScriptControl::ShowBusyCursor(bool busy)
{
    if (busy == busyCursor_ || !qApp)
        return;
    busyCursor_ = busy;
    if (busy)
        QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    else
        QApplication::restoreOverrideCursor();
}

void ScriptControl::Beep()
{
    parts_.Messages.Beep();
}

void ScriptControl::PostWakeUp()
{
    QMetaObject::invokeMethod(
        qApp, [] {}, Qt::QueuedConnection);
}

void ScriptControl::PrintToGameWindow(const char* text)
{
    parts_.Print(text);
}

void ScriptControl::SendScripted(const char* text)
{
    parts_.SendScripted(text);
}

void ScriptControl::PumpFor(int seconds)
{
    parts_.PumpFor(seconds);
}

} // namespace steward
