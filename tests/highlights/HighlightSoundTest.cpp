#include "highlights/HighlightSound.h"
#include "HighlightDoubles.h"

#include <gtest/gtest.h>

namespace steward::testing {
namespace {

using Paths = std::vector<std::string>;

TEST(HighlightSoundPath, AWavExtensionIsAddedToNamesWithoutADot)
{
    const struct {
        const char* folder;
        const char* name;
        Paths existing;
        Paths asked;
    } cases[] = {
        {"/data", "gong", {"/data/gong.WAV"}, {"/data/gong.WAV"}},
        {"/data", "gong", {"/data/gong.wav"}, {"/data/gong.WAV", "/data/gong.wav"}},
        {"/data", "gong", {}, {"/data/gong.WAV", "/data/gong.wav"}},
        {"/data", "bell.ogg", {}, {"/data/bell.ogg"}},
        {"/home/a.b/Steward",
         "gong",
         {},
         {"/home/a.b/Steward/gong.WAV", "/home/a.b/Steward/gong.wav"}},
    };
    for (const auto& c : cases) {
        RecordingPlayer player;
        player.existing = c.existing;
        SoundFolder folder(player);
        folder.SetSoundPath(c.folder);
        folder.PlayHighlightSound(c.name);
        EXPECT_EQ(player.asked, c.asked) << c.name;
    }
}

TEST(HighlightSoundPath, APathLongerThanItsBufferPlaysNothing)
{
    RecordingPlayer player;
    SoundFolder folder(player);
    folder.SetSoundPath(std::string(SOUND_PATH_SIZE - 6, 'd'));
    folder.PlayHighlightSound("xy.w");
    ASSERT_EQ(player.asked.size(), 1u) << "255 bytes still fit";
    folder.PlayHighlightSound("xyz.w");
    EXPECT_EQ(player.asked.size(), 1u);
}

TEST(HighlightSoundStart, TheStartMusicPlaysUnlessSquelched)
{
    RecordedSounds sounds;
    PlayStartMusic(sounds, true);
    EXPECT_TRUE(sounds.played.empty());
    PlayStartMusic(sounds, false);
    EXPECT_EQ(sounds.played, Paths{"T_STARTMUSIC"});
}

} // namespace
} // namespace steward::testing
