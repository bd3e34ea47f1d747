#include "highlights/HighlightSound.h"
#include "HighlightDoubles.h"
#include "highlights/SoundFiles.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace steward::testing {
namespace {

using Paths = std::vector<std::string>;

TEST(HighlightSound, AWavExtensionIsAddedToNamesWithoutADot)
{
    const struct {
        const char *folder, *name;
        Paths existing, asked;
    } rows[] = {{"/data", "gong", {"/data/gong.WAV"}, {"/data/gong.WAV"}},
                {"/data", "gong", {"/data/gong.wav"}, {"/data/gong.WAV", "/data/gong.wav"}},
                {"/data", "bell.ogg", {}, {"/data/bell.ogg"}},
                {"/home/a.b/Steward",
                 "gong",
                 {},
                 {"/home/a.b/Steward/gong.WAV", "/home/a.b/Steward/gong.wav"}}};
    for (const auto& row : rows) {
        RecordingPlayer player;
        player.existing = row.existing;
        SoundFolder folder(player);
        folder.SetSoundPath(row.folder);
        folder.PlayHighlightSound(row.name);
        EXPECT_EQ(player.asked, row.asked) << row.name;
    }
    RecordingPlayer player;
    SoundFolder folder(player);
    folder.SetSoundPath(std::string(SOUND_PATH_SIZE - 6, 'd'));
    folder.PlayHighlightSound("xy.w");
    ASSERT_EQ(player.asked.size(), 1u) << "255 bytes still fit";
    folder.PlayHighlightSound("xyz.w");
    EXPECT_EQ(player.asked.size(), 1u);
    RecordedSounds sounds;
    PlayStartMusic(sounds, true);
    EXPECT_TRUE(sounds.played.empty()) << "squelched";
    PlayStartMusic(sounds, false);
    EXPECT_EQ(sounds.played, Paths{"T_STARTMUSIC"});
}

const std::string WAVE("RIFF\x24\0\0\0WAVEfmt ", 16);

TEST(SoundFiles, ImportTakesOnlyWaveFilesAndNeverOverwritesTheFolders)
{
    const struct {
        // The chosen file, made in "elsewhere" unless inSoundFolder, with these bytes (none: no
        // file).
        const char *file, *bytes;
        bool inSoundFolder;
        const char *choice, *error; // a phrase of the message, or "" for none
    } rows[] = {{"Gong.wav", "wave", true, "Gong", ""},
                {"big_BELL.WAV", "wave", false, "Big_bell", ""},
                {"gone.wav", nullptr, false, "", "does not exist"},
                {"notes.wav", "just some text", false, "", "is not a wave sound"},
                {"bell.snd", "wave", false, "", "must be a .wav file"},
                {"Gong.wav", "wave", false, "", "already in the sound"},
                {"GONG.wav", "wave", false, "", "already in the sound"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.file);
        TempFolder root;
        const std::string sounds = root.File("sounds"), elsewhere = root.File("elsewhere");
        std::filesystem::create_directories(sounds);
        std::filesystem::create_directories(elsewhere);
        WriteBytes(sounds + "/Gong.wav", WAVE);
        const std::string path = (row.inSoundFolder ? sounds : elsewhere) + "/" + row.file;
        if (row.bytes)
            WriteBytes(path, row.bytes == std::string("wave") ? WAVE : row.bytes);
        const SoundImport import = ImportSoundFile(path, sounds);
        EXPECT_EQ(import.Choice, row.choice);
        EXPECT_NE(import.Error.find(row.error), std::string::npos) << import.Error;
        EXPECT_EQ(*row.error == '\0', import.Error.empty()) << import.Error;
        const bool copied = !row.inSoundFolder && *row.choice != '\0';
        EXPECT_EQ(std::filesystem::exists(sounds + "/" + row.file),
                  row.inSoundFolder || copied || std::string(row.file) == "Gong.wav");
    }
    TempFolder folder;
    WriteBytes(folder.File("T_STARTMUSIC.wav"), WAVE);
    RecordingPlayer player;
    player.existing = {folder.File("T_STARTMUSIC.wav")};
    SoundFolder sounds(player);
    sounds.SetSoundPath(folder.Path());
    EXPECT_TRUE(sounds.TryPlay("T_startmusic")) << "a name finds its file in any case";
    EXPECT_EQ(player.asked.back(), folder.File("T_STARTMUSIC.wav"));
    EXPECT_FALSE(sounds.TryPlay("Gong"));
}

} // namespace
} // namespace steward::testing
