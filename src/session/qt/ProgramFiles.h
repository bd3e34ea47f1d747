#pragma once

#include <string>

namespace steward {

// Writes the files that the program brings ("Version Notes.Txt" and the default sounds) into
// the folder where they are missing.
void InstallProgramFiles(const std::string& folder);

} // namespace steward
