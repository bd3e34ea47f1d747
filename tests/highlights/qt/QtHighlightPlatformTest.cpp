#include "base/qt/ProgramFiles.h"
#include "highlights/HighlightSound.h"
#include "highlights/qt/QtClipboardReader.h"
#include "highlights/qt/QtSoundPlayer.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace steward::testing {
namespace {

TEST(QtSoundPlayer, DefaultSoundsKeepThePlayersFilesAndPlayByTheNameRule)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    QFile mine(folder.filePath(QStringLiteral("Gong.wav")));
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.write("mine");
    mine.close();
    InstallDefaultSounds(folder.path());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
              (QStringList{"Chime.wav", "Gong.wav", "T_STARTMUSIC.wav"}));
    EXPECT_EQ(QFileInfo(mine).size(), 4) << "never overwritten";
    EXPECT_GT(QFileInfo(folder.filePath(QStringLiteral("Chime.wav"))).size(), 1000);
    struct Probe : SoundPlayer {
        QtSoundPlayer real;
        QStringList found;
        bool PlayFile(const char* path) override
        {
            const bool exists = real.PlayFile(path);
            if (exists)
                found << QFile::decodeName(path);
            return exists;
        }
    } probe;
    SoundFolder sounds(probe);
    sounds.SetSoundPath(QFile::encodeName(folder.path()).toStdString());
    PlayStartMusic(sounds, false);
    sounds.PlayHighlightSound("Chime");
    sounds.PlayHighlightSound("Chime");
    EXPECT_EQ(probe.found,
              (QStringList{folder.filePath("T_STARTMUSIC.wav"), folder.filePath("Chime.wav"),
                           folder.filePath("Chime.wav")}))
        << "a second sound cuts the first, with or without audio";
    EXPECT_FALSE(probe.real.PlayFile(QFile::encodeName(folder.filePath("Gong.WAV")).constData()));
}

TEST(QtClipboardReader, ReadsTextWithCharactersBeyondAsciiAsQuestionMarks)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("Mara\r\nZo\u00eb \u00a0x"));
    QtClipboardReader reader;
    std::string text;
    ASSERT_TRUE(reader.ReadText(text));
    EXPECT_EQ(text, "Mara\r\nZo? ?x");
}

} // namespace
} // namespace steward::testing
