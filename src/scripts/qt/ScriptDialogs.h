#pragma once

#include <string>

class QWidget;

namespace steward {

// The open dialog of the script folder, for running (.Stw) or for editing (.Stw and .Cmd);
// the chosen path, or empty on Cancel.
std::string ChooseScriptFileDialog(QWidget* parent, const std::string& folder, bool forEditing);
// The save dialog of a recording, "New Script" in the script folder; empty on Cancel.
std::string RecordScriptFileDialog(QWidget* parent, const std::string& folder);
// The two-step sheet that names a new script and creates it empty; the new file's path, or
// empty when the sheet was cancelled.
std::string ScriptCreatorDialog(QWidget* parent, const std::string& folder);

} // namespace steward
