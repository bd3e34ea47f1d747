#pragma once

#include <string>

class QWidget;

namespace steward {

// The script dialogs, starting in the script folder: a file to run or to edit, the file of a
// recording, a new empty script. Each gives a path, or empty on Cancel.
class ScriptFileDialogs {
  public:
    virtual ~ScriptFileDialogs() = default;
    virtual std::string ChooseScriptFile(QWidget* parent, const std::string& folder,
                                         bool forEditing) = 0;
    virtual std::string AskRecordFile(QWidget* parent, const std::string& folder) = 0;
    virtual std::string CreateScript(QWidget* parent, const std::string& folder) = 0;
};

// The open dialog of the script folder, for running (.Stw) or for editing (.Stw and .Cmd);
// the chosen path, or empty on Cancel.
std::string ChooseScriptFileDialog(QWidget* parent, const std::string& folder, bool forEditing);
// The save dialog of a recording, "New Script" in the script folder; empty on Cancel.
std::string RecordScriptFileDialog(QWidget* parent, const std::string& folder);
// The two-step sheet that names a new script and creates it empty; the new file's path, or
// empty when the sheet was cancelled.
std::string ScriptCreatorDialog(QWidget* parent, const std::string& folder);

} // namespace steward
