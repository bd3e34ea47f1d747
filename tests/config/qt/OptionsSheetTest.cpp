#include "config/qt/OptionsSheet.h"

#include "base/ByteText.h"
#include "config/IniStore.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace steward {
namespace {

enum Tab { SETTINGS_TAB, INVENTORY_TAB, PATHS_TAB, STEWARD_TAB };

class OptionsSheetTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        files = MakeConfigFiles(folder.path().toStdString());
        CopyCut(profile.EquipWeapon, EQUIP_COMMAND_SIZE, "ready saber");
    }

    template <typename Page> Page& Open(Tab tab)
    {
        Sheet().Tabs()->setCurrentIndex(tab);
        auto* page = dynamic_cast<Page*>(Sheet().Page(tab));
        EXPECT_NE(page, nullptr);
        return *page;
    }

    OptionsSheet& Sheet()
    {
        if (!sheet_)
            sheet_ = std::make_unique<OptionsSheet>(
                OptionsTarget{profile, steward, files},
                [this](QWidget*, const char* title) {
                    pickTitles.emplace_back(title);
                    return picked;
                },
                nullptr);
        return *sheet_;
    }

    // Closes the sheet, then shows a new one of the same objects.
    void Reopen() { sheet_.reset(); }

    std::string IniValue(const char* key) const
    {
        char value[FOLDER_VALUE_SIZE];
        ReadString(files.MainIni, "Config", key, value, sizeof value, "(none)");
        return value;
    }

    QTemporaryDir folder;
    ConfigFiles files;
    CharacterProfile profile;
    StewardOptions steward;
    std::string picked;
    std::vector<std::string> pickTitles;

  private:
    std::unique_ptr<OptionsSheet> sheet_;
};

struct FlagCase {
    const char* name;
    int index;
    std::uint8_t Settings::*field;
};

class SettingsFlags : public OptionsSheetTest, public ::testing::WithParamInterface<FlagCase> {};

TEST_P(SettingsFlags, OkSetsTheFieldCancelLeavesIt)
{
    Settings& settings = profile.Settings;
    const std::uint8_t before = settings.*GetParam().field;
    QCheckBox* box = Open<SettingsPage>(SETTINGS_TAB).Flag(GetParam().index);
    EXPECT_EQ(box->isChecked(), before != 0);
    box->setChecked(before == 0);
    Sheet().reject();
    EXPECT_EQ(settings.*GetParam().field, before);
    Reopen();
    Open<SettingsPage>(SETTINGS_TAB).Flag(GetParam().index)->setChecked(before == 0);
    Sheet().accept();
    EXPECT_EQ(settings.*GetParam().field, before == 0 ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, SettingsFlags,
    ::testing::Values(FlagCase{"BufferedUpdates", 0, &Settings::BufferedUpdates},
                      FlagCase{"ShowCursor", 1, &Settings::ShowCursor},
                      FlagCase{"HonorNumLock", 2, &Settings::HonorNumLock},
                      FlagCase{"SquelchSounds", 3, &Settings::SquelchSounds},
                      FlagCase{"CompressThoughts", 4, &Settings::CompressThoughtMessages},
                      FlagCase{"IgnoreYells", 5, &Settings::IgnoreYells},
                      FlagCase{"OnlyListedArrivals", 6, &Settings::OnlyListedArrivals},
                      FlagCase{"ShowStatusPrompt", 7, &Settings::ShowStatusPrompt},
                      FlagCase{"LocalEcho", 8, &Settings::LocalEcho}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(OptionsSheetTest, PrefixTakesOneCharacterAndEmptyGivesADot)
{
    profile.Settings.CommandPrefix = 0;
    QLineEdit* prefix = Open<SettingsPage>(SETTINGS_TAB).Prefix();
    EXPECT_EQ(prefix->text(), QStringLiteral("."));
    prefix->clear();
    QTest::keyClicks(prefix, QStringLiteral("#!"));
    EXPECT_EQ(prefix->text(), QStringLiteral("#"));
    Sheet().accept();
    EXPECT_EQ(profile.Settings.CommandPrefix, '#');
    Reopen();
    Open<SettingsPage>(SETTINGS_TAB).Prefix()->clear();
    Sheet().accept();
    EXPECT_EQ(profile.Settings.CommandPrefix, '.');
}

struct LengthCase {
    const char* name;
    const char* typed;
    std::int16_t stored;
};

class MinCommandLength : public OptionsSheetTest,
                         public ::testing::WithParamInterface<LengthCase> {};

TEST_P(MinCommandLength, TakesUpToThreeDigits)
{
    QLineEdit* edit = Open<SettingsPage>(SETTINGS_TAB).MinLength();
    edit->clear();
    QTest::keyClicks(edit, QString::fromLatin1(GetParam().typed));
    Sheet().accept();
    EXPECT_EQ(profile.Settings.MinCommandLength, GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Typed, MinCommandLength,
                         ::testing::Values(LengthCase{"Largest", "999", 999},
                                           LengthCase{"FourthDigitRefused", "1234", 123},
                                           LengthCase{"SignAndLettersRefused", "-x5", 5},
                                           LengthCase{"EmptyIsZero", "", 0}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(OptionsSheetTest, InventoryCommandsAreCopiedAndCut)
{
    InventoryPage& page = Open<InventoryPage>(INVENTORY_TAB);
    EXPECT_EQ(page.Command(0)->text(), QStringLiteral("ready saber"));
    page.Command(0)->clear();
    page.Command(1)->setText(QStringLiteral("sheathe sword"));
    page.Command(3)->setText(QString(200, QChar('s')));
    Sheet().accept();
    EXPECT_STREQ(profile.EquipWeapon, "");
    EXPECT_STREQ(profile.UnequipWeapon, "sheathe sword");
    EXPECT_EQ(std::string(profile.UnequipShield), std::string(EQUIP_COMMAND_SIZE - 1, 's'));
}

TEST_F(OptionsSheetTest, PathsGoToTheMainIniAtOnce)
{
    PathsPage& page = Open<PathsPage>(PATHS_TAB);
    EXPECT_EQ(page.Path(0)->text().toStdString(), files.ProgramFolder);
    picked = "/music/waves";
    page.Locate(0);
    picked.clear();
    page.Path(1)->setText(QStringLiteral("/typed/scripts/"));
    page.Locate(1);
    EXPECT_EQ(pickTitles, (std::vector<std::string>{"Where Are Your WAV Files Located?",
                                                    "Where Are Your Script Files Located?"}));
    Sheet().accept();
    EXPECT_EQ(IniValue("Sound Path"), "/music/waves");
    EXPECT_EQ(IniValue("Script Path"), "/typed/scripts/");
    Reopen();
    Open<PathsPage>(PATHS_TAB).Path(0)->clear();
    Sheet().accept();
    EXPECT_EQ(IniValue("Sound Path"), "(none)");
}

TEST_F(OptionsSheetTest, PagesNeverOpenedAndCancelChangeNothing)
{
    ASSERT_TRUE(WriteString(files.MainIni, "Config", "Script Path", "/kept"));
    Open<PathsPage>(PATHS_TAB).Path(1)->setText(QStringLiteral("/dropped"));
    Sheet().reject();
    Reopen();
    Sheet().accept();
    EXPECT_EQ(IniValue("Script Path"), "/kept");
    EXPECT_EQ(Sheet().Page(INVENTORY_TAB), nullptr);
    EXPECT_STREQ(profile.EquipWeapon, "ready saber");
}

TEST_F(OptionsSheetTest, StewardOptionsGoToTheirOwnSectionOnOkOnly)
{
    Open<StewardPage>(STEWARD_TAB).Check(RECONNECT_ON_DROP)->setChecked(true);
    Sheet().reject();
    EXPECT_FALSE(steward.IsOn(RECONNECT_ON_DROP));
    Reopen();
    Open<StewardPage>(STEWARD_TAB).Check(RECONNECT_ON_DROP)->setChecked(true);
    Sheet().accept();
    EXPECT_TRUE(steward.IsOn(RECONNECT_ON_DROP));
    EXPECT_TRUE(StewardOptions::Load(files.MainIni).IsOn(RECONNECT_ON_DROP));
    EXPECT_FALSE(StewardOptions::Load(files.MainIni).IsOn(SHOW_LIVE_TAIL));
}

} // namespace
} // namespace steward
