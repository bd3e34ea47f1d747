#include "highlights/SoundFiles.h"
#include "HighlightDoubles.h"
#include "highlights/HighlightSound.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace steward::testing {
namespace {

const std::string WAVE("RIFF\x24\0\0\0WAVEfmt ", 16);

void Write(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

struct ImportCase {
    const char* name;
    // The chosen file, made in "elsewhere" unless inSoundFolder, with these bytes (none: no file).
    const char* file;
    const char* bytes;
    bool inSoundFolder;
    const char* choice;
    const char* error; // a phrase of the message, or "" for none
};

class SoundImportTest : public ::testing::TestWithParam<ImportCase> {};

TEST_P(SoundImportTest, TakesOnlyWaveFilesAndNeverOverwritesTheFolders)
{
    const ImportCase& c = GetParam();
    TempFolder root;
    const std::string sounds = root.File("sounds");
    const std::string elsewhere = root.File("elsewhere");
    std::filesystem::create_directories(sounds);
    std::filesystem::create_directories(elsewhere);
    Write(sounds + "/Gong.wav", WAVE);
    const std::string path = (c.inSoundFolder ? sounds : elsewhere) + "/" + c.file;
    if (c.bytes)
        Write(path, c.bytes == std::string("wave") ? WAVE : c.bytes);

    const SoundImport import = ImportSoundFile(path, sounds);
    EXPECT_EQ(import.Choice, c.choice);
    EXPECT_NE(import.Error.find(c.error), std::string::npos) << import.Error;
    EXPECT_EQ(*c.error == '\0', import.Error.empty()) << import.Error;
    const bool copied = !c.inSoundFolder && *c.choice != '\0';
    EXPECT_EQ(std::filesystem::exists(sounds + "/" + c.file),
              c.inSoundFolder || copied || std::string(c.file) == "Gong.wav");
}

INSTANTIATE_TEST_SUITE_P(
    Files, SoundImportTest,
    ::testing::Values(
        ImportCase{"InTheFolder", "Gong.wav", "wave", true, "Gong", ""},
        ImportCase{"FromElsewhereIsCopied", "big_BELL.WAV", "wave", false, "Big_bell", ""},
        ImportCase{"Missing", "gone.wav", nullptr, false, "", "does not exist"},
        ImportCase{"NotASound", "notes.wav", "just some text", false, "", "is not a wave sound"},
        ImportCase{"WaveWithAnotherName", "bell.snd", "wave", false, "", "must be a .wav file"},
        ImportCase{"NameTakenInTheFolder", "Gong.wav", "wave", false, "", "already in the sound"},
        ImportCase{"NameTakenInAnotherCase", "GONG.wav", "wave", false, "",
                   "already in the sound"}),
    [](const auto& info) { return info.param.name; });

TEST(SoundFolderPlay, ANameFindsItsFileInAnyCaseAndSaysWhenThereIsNone)
{
    TempFolder folder;
    Write(folder.File("T_STARTMUSIC.wav"), WAVE);
    RecordingPlayer player;
    player.existing = {folder.File("T_STARTMUSIC.wav")};
    SoundFolder sounds(player);
    sounds.SetSoundPath(folder.Path());
    EXPECT_TRUE(sounds.TryPlay("T_startmusic"));
    EXPECT_EQ(player.asked.back(), folder.File("T_STARTMUSIC.wav"));
    EXPECT_FALSE(sounds.TryPlay("Gong"));
}

} // namespace
} // namespace steward::testing
