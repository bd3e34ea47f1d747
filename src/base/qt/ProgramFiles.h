#pragma once

#include <string>

class QString;

namespace steward {

// Writes the files that the program brings ("Version Notes.Txt", the default sounds and the
// example scripts) into the folder where they are missing.
void InstallProgramFiles(const std::string& folder);
// Writes the wave files that come with the program into folder where they are missing.
void InstallDefaultSounds(const QString& folder);
// Copies each file of a resource folder into the folder, unless a file of its name is there.
void InstallMissingResources(const QString& resourceFolder, const QString& folder);

} // namespace steward
