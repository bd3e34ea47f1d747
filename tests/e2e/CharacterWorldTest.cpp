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
        WriteFile("Beta.Highlights", "012 \"salmon\"\n");
        ASSERT_TRUE(macros.SaveMacros(File("Gamma.Macros").c_str()));
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

TEST_F(CharacterWorldTest,
       SwitchingOrCreatingACharacterLoadsOrSavesItsDataKeepsTheTextAndSendsNothing)
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

    client->State().Profile.Settings.LocalEcho = 0;
    // A maximised window must not hide the menu from the rebuild.
    client->Windows().Maximise(GAME_ROW);
    const QByteArray beforeDelta = SentAfterAWhile();
    desktop.answers = {"Delta  "};
    client->OnCommand(CMD_NEW_CHARACTER);

    EXPECT_EQ(desktop.stringTitles, std::vector<std::string>{"Enter New Character Name"});
    EXPECT_STREQ(client->State().Profile.CurrentCharacter, "Delta");
    for (const char* name : {"Delta.Dat", "Delta.Macros", "Delta.Highlights"})
        EXPECT_TRUE(QFile::exists(folder.filePath(name))) << name;
    ASSERT_TRUE(ReadBinary(File("Delta.Dat"), "Config", "Settings", saved.data(), saved.size()));
    EXPECT_EQ(Settings::FromBytes(saved).LocalEcho, 0);
    EXPECT_TRUE(client->Frame().windowTitle().contains("Delta"));
    EXPECT_TRUE(Listed(*client).contains("Delta*"));
    EXPECT_EQ(SentAfterAWhile(), beforeDelta);
}

// Tests run as root, who writes into any folder; a data folder that went away is one that
// cannot be written by anyone.
TEST_F(CharacterWorldTest, ABadNameOrAFolderThatCannotBeWrittenIsSaidAndNothingChanges)
{
    desktop.choice = ConnectChoice::Offline;
    auto client = MakeClient("");
    ASSERT_TRUE(client->Start());
    const QString away = folder.path() + "-away";
    const struct {
        const char* answer;
        const char* message;
    } cases[] = {{"   ", "needs a name"},
                 {"../Evil", "cannot hold"},
                 {"Evil\\One", "cannot hold"},
                 {"bETA", "exists already"},
                 {"Epsilon", "cannot be written"}};
    for (const auto& c : cases) {
        const QStringList before = QDir(folder.path()).entryList(QDir::Files);
        const bool unwritable = std::string(c.message) == "cannot be written";
        ASSERT_TRUE(!unwritable || QDir().rename(folder.path(), away));
        desktop.messages.clear();
        desktop.answers = {c.answer};
        client->OnCommand(CMD_NEW_CHARACTER);
        ASSERT_TRUE(!unwritable || QDir().rename(away, folder.path()));
        EXPECT_STREQ(client->State().Profile.CurrentCharacter, "Default") << c.answer;
        ASSERT_EQ(desktop.messages.size(), 1u) << c.answer;
        EXPECT_NE(desktop.messages.front().find(c.message), std::string::npos)
            << desktop.messages.front();
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), before) << c.answer;
    }
    EXPECT_FALSE(QFile::exists(folder.filePath("../Evil.Dat")));
}

} // namespace
} // namespace steward::test
