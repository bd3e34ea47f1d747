#pragma once

#include <string>

namespace steward {

// What a chosen sound file turned out to be.
enum class SoundFileKind { Wave, Missing, NotWave };

// Looks at the file's header: a RIFF file of the WAVE form, named *.wav in any case.
SoundFileKind CheckSoundFile(const std::string& path);

// A sound file brought into the sound folder for the sheet: the name its list shows, or an
// empty Choice and the sentence that says why not.
struct SoundImport {
    std::string Choice;
    std::string Error;
};

// A file inside the folder is taken as it is; one from elsewhere is copied in, unless a file of
// that name is there already, which is never overwritten.
SoundImport ImportSoundFile(const std::string& path, const std::string& soundFolder);

// The file of the folder whose name equals name without regard to ASCII case, or empty; sound
// names written on a system that ignores case still find their files.
std::string FindFileNoCase(const std::string& folder, const std::string& name);

} // namespace steward
