#include "ClientHarness.h"
#include "base/ByteText.h"
#include "base/ColorCode.h"
#include "base/FrameCommand.h"
#include "commands/MacroStore.h"
#include "config/BinaryRecords.h"
#include "config/CharacterProfile.h"
#include "config/IniStore.h"
#include "session/qt/ChildWindowSet.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QMenuBar>

namespace steward::test {
namespace {

// Three characters: Default, with which the client starts; Beta, with settings, a macro, a
// highlight and a window layout of its own; and Gamma, known only by its macro file.
class CharacterWorldTest : public ClientHarness {
  protected:
    void SetUp() override
    {
        ClientHarness::SetUp();
        Settings beta;
        beta.IgnoreYells = 1;
        beta.MinCommandLength = 9;
        const SettingsBytes bytes = beta.ToBytes();
        const std::string betaDat = File("Beta.Dat");
        ASSERT_TRUE(WriteBinary(betaDat, "Config", "Settings", bytes.data(), bytes.size()));
        ASSERT_TRUE(WriteString(betaDat, "Config", "EquipWeapon", "ready beta blade"));
        ASSERT_TRUE(WriteOpenWindows(betaDat, "G"));
        MacroStore macros;
        macros.SetMacro(KEY_ALT, 'K', "say beta macro\\r");
        ASSERT_TRUE(macros.SaveMacros(File("Beta.Macros").c_str()));
        WriteText("Beta.Highlights", "012 \"salmon\"\n");
        ASSERT_TRUE(macros.SaveMacros(File("Gamma.Macros").c_str()));
    }

    std::string File(const char* name) const { return folder.filePath(name).toStdString(); }
    void WriteText(const char* name, const char* text) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    // The items of the "Characters" submenu, the checked one with a star.
    static QStringList Listed(Client& client)
    {
        QStringList items;
        for (QAction* action : CharactersMenu(client)->actions())
            if (!action->isSeparator())
                items << action->text() + (action->isChecked() ? "*" : "");
        return items;
    }
    static QMenu* CharactersMenu(Client& client)
    {
        QMenu* configuration = client.Frame().menuBar()->actions().at(2)->menu();
        return configuration->actions().at(8)->menu();
    }
    static void Choose(Client& client, const QString& text)
    {
        for (QAction* action : CharactersMenu(client)->actions())
            if (action->text() == text)
                return action->trigger();
        ADD_FAILURE() << "no item " << text.toStdString();
    }
    // The world records what it was sent; a short wait lets anything on its way arrive.
    QByteArray SentAfterAWhile() const
    {
        QTest::qWait(300);
        return Sent();
    }
};

TEST_F(CharacterWorldTest, SwitchingLoadsTheOtherCharacterKeepsTheTextAndSendsNothing)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    ASSERT_TRUE(client->State().Windows.ThoughtWindow);
    EXPECT_EQ(Listed(*client),
              (QStringList{"Beta", "Default*", "Gamma", "Create a new Character Profile..."}));
    const QByteArray sentBefore = SentAfterAWhile();

    Choose(*client, "Beta");
    const CharacterProfile& profile = client->State().Profile;
    EXPECT_STREQ(profile.CurrentCharacter, "Beta");
    EXPECT_EQ(profile.Settings.IgnoreYells, 1);
    EXPECT_STREQ(profile.EquipWeapon, "ready beta blade");
    EXPECT_TRUE(client->Frame().windowTitle().contains("Beta"));
    EXPECT_NE(GameText(*client).find("[Thornmere, Market Square]"), std::string::npos);
    EXPECT_EQ(client->State().Windows.ThoughtWindow, nullptr);
    EXPECT_EQ(Listed(*client).first(), "Beta*");
    EXPECT_EQ(SentAfterAWhile(), sentBefore);

    QTest::keyClick(client->Frame().CommandLine(), Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(WaitForSent("say beta macro\n\r"));
    Type(*client, "look");
    const std::string salmon = ColorOnText(12) + std::string("salmon");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return WindowBytes(client->State().Windows.GameWindow).find(salmon) !=
                   std::string::npos;
        },
        WAIT_MS));

    // Back to Default: Beta is saved as it was played, Default comes back with its windows.
    client->State().Profile.Settings.ShowStatusPrompt = 1;
    const std::string betaText = GameText(*client);
    Choose(*client, "Default");
    EXPECT_STREQ(profile.CurrentCharacter, "Default");
    EXPECT_EQ(profile.Settings.IgnoreYells, 0);
    EXPECT_EQ(profile.Settings.ShowStatusPrompt, 0);
    EXPECT_TRUE(client->State().Windows.ThoughtWindow);
    EXPECT_EQ(GameText(*client).substr(0, betaText.size()), betaText);
    EXPECT_EQ(ReadOpenWindows(File("Beta.Dat")), "G");
    SettingsBytes saved{};
    ASSERT_TRUE(ReadBinary(File("Beta.Dat"), "Config", "Settings", saved.data(), saved.size()));
    EXPECT_EQ(Settings::FromBytes(saved).ShowStatusPrompt, 1);
    EXPECT_EQ(Settings::FromBytes(saved).MinCommandLength, 9);
}

TEST_F(CharacterWorldTest, CreatingACharacterSavesTheCurrentDataUnderItsNameAndSelectsIt)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    client->State().Profile.Settings.LocalEcho = 0;
    // A maximised window must not hide the menu from the rebuild.
    client->Windows().Maximise(GAME_ROW);
    const QByteArray sentBefore = SentAfterAWhile();
    desktop.answers = {"Delta  "};
    client->OnCommand(CMD_NEW_CHARACTER);

    EXPECT_EQ(desktop.stringTitles, std::vector<std::string>{"Enter New Character Name"});
    EXPECT_STREQ(client->State().Profile.CurrentCharacter, "Delta");
    for (const char* name : {"Delta.Dat", "Delta.Macros", "Delta.Highlights"})
        EXPECT_TRUE(QFile::exists(folder.filePath(name))) << name;
    SettingsBytes saved{};
    ASSERT_TRUE(ReadBinary(File("Delta.Dat"), "Config", "Settings", saved.data(), saved.size()));
    EXPECT_EQ(Settings::FromBytes(saved).LocalEcho, 0);
    EXPECT_TRUE(client->Frame().windowTitle().contains("Delta"));
    EXPECT_TRUE(Listed(*client).contains("Delta*"));
    EXPECT_EQ(SentAfterAWhile(), sentBefore);
}

struct BadName {
    const char* name;
    const char* answer;
    const char* message;
};

class CharacterNameRefused : public CharacterWorldTest,
                             public ::testing::WithParamInterface<BadName> {};

TEST_P(CharacterNameRefused, WithAMessageAndNoFileTouched)
{
    desktop.choice = ConnectChoice::Offline;
    auto client = MakeClient("");
    ASSERT_TRUE(client->Start());
    const QStringList before = QDir(folder.path()).entryList(QDir::Files);
    desktop.answers = {GetParam().answer};
    client->OnCommand(CMD_NEW_CHARACTER);
    EXPECT_STREQ(client->State().Profile.CurrentCharacter, "Default");
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_NE(desktop.messages.front().find(GetParam().message), std::string::npos)
        << desktop.messages.front();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), before);
    EXPECT_FALSE(QFile::exists(folder.filePath("../Evil.Dat")));
}

INSTANTIATE_TEST_SUITE_P(Names, CharacterNameRefused,
                         ::testing::Values(BadName{"Empty", "   ", "needs a name"},
                                           BadName{"PathSeparator", "../Evil", "cannot hold"},
                                           BadName{"Backslash", "Evil\\One", "cannot hold"},
                                           BadName{"Exists", "bETA", "exists already"}),
                         [](const auto& info) { return std::string(info.param.name); });

// Tests run as root, who writes into any folder; a data folder that went away is one that
// cannot be written by anyone.
TEST_F(CharacterWorldTest, AFolderThatCannotBeWrittenIsSaidAndNothingChanges)
{
    desktop.choice = ConnectChoice::Offline;
    auto client = MakeClient("");
    ASSERT_TRUE(client->Start());
    const QString away = folder.path() + "-away";
    ASSERT_TRUE(QDir().rename(folder.path(), away));
    desktop.answers = {"Epsilon"};
    client->OnCommand(CMD_NEW_CHARACTER);
    ASSERT_TRUE(QDir().rename(away, folder.path()));
    EXPECT_STREQ(client->State().Profile.CurrentCharacter, "Default");
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_NE(desktop.messages.front().find("cannot be written"), std::string::npos);
    EXPECT_FALSE(QFile::exists(folder.filePath("Epsilon.Dat")));
}

} // namespace
} // namespace steward::test
