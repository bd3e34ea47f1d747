#include "config/qt/OptionsSheet.h"

#include "base/ByteText.h"
#include "config/IniStore.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

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

TEST_F(OptionsSheetTest, OkSetsEachFlag)
{
    std::uint8_t Settings::*const fields[] = {&Settings::BufferedUpdates,
                                              &Settings::ShowCursor,
                                              &Settings::HonorNumLock,
                                              &Settings::SquelchSounds,
                                              &Settings::CompressThoughtMessages,
                                              &Settings::IgnoreYells,
                                              &Settings::OnlyListedArrivals,
                                              &Settings::ShowStatusPrompt,
                                              &Settings::LocalEcho};
    for (int index = 0; index < 9; ++index) {
        SCOPED_TRACE(index);
        std::uint8_t& field = profile.Settings.*fields[index];
        const std::uint8_t before = field;
        Reopen();
        QCheckBox* box = Open<SettingsPage>(SETTINGS_TAB).Flag(index);
        EXPECT_EQ(box->isChecked(), before != 0);
        box->setChecked(before == 0);
        Sheet().accept();
        EXPECT_EQ(field, before == 0 ? 1 : 0);
    }
}

TEST_F(OptionsSheetTest, PrefixTakesOneCharacterAndMinCommandLengthUpToThreeDigits)
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
    const struct {
        const char* typed;
        std::int16_t stored;
    } rows[] = {{"999", 999}, {"1234", 123}, {"-x5", 5}, {"", 0}};
    for (const auto& row : rows) {
        Reopen();
        QLineEdit* edit = Open<SettingsPage>(SETTINGS_TAB).MinLength();
        edit->clear();
        QTest::keyClicks(edit, QString::fromLatin1(row.typed));
        Sheet().accept();
        EXPECT_EQ(profile.Settings.MinCommandLength, row.stored) << row.typed;
    }
}

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

TEST_F(OptionsSheetTest, PagesNeverOpenedAndCancelChangeNothingAndOkWritesTheOptions)
{
    ASSERT_TRUE(WriteString(files.MainIni, "Config", "Script Path", "/kept"));
    Open<PathsPage>(PATHS_TAB).Path(1)->setText(QStringLiteral("/dropped"));
    Open<StewardPage>(STEWARD_TAB).Check(RECONNECT_ON_DROP)->setChecked(true);
    Sheet().reject();
    EXPECT_FALSE(steward.IsOn(RECONNECT_ON_DROP));
    Reopen();
    Sheet().accept();
    EXPECT_EQ(IniValue("Script Path"), "/kept");
    EXPECT_EQ(Sheet().Page(INVENTORY_TAB), nullptr);
    EXPECT_STREQ(profile.EquipWeapon, "ready saber");
    Reopen();
    Open<StewardPage>(STEWARD_TAB).Check(RECONNECT_ON_DROP)->setChecked(true);
    Sheet().accept();
    EXPECT_TRUE(steward.IsOn(RECONNECT_ON_DROP)) << "the program's own options go on Ok";
    EXPECT_TRUE(StewardOptions::Load(files.MainIni).IsOn(RECONNECT_ON_DROP));
    EXPECT_FALSE(StewardOptions::Load(files.MainIni).IsOn(SHOW_LIVE_TAIL));
}

TEST(OptionGateTest, ARefusedOptionIsUntickedAndStaysOffOnOk)
{
    const struct {
        StewardOption option;
        bool allowed;
    } cases[] = {{SPEAK, false}, {SPEAK, true}, {RECONNECT_ON_DROP, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(StewardOptionTable[c.option].Key);
        QTemporaryDir folder;
        const ConfigFiles files = MakeConfigFiles(folder.path().toStdString());
        StewardOptions options;
        std::vector<StewardOption> asked;
        StewardPage page(options, files, [&](StewardOption option, QWidget*) {
            asked.push_back(option);
            return c.allowed;
        });
        page.Check(c.option)->setChecked(true);
        page.Check(c.option)->setChecked(false);
        EXPECT_EQ(asked, std::vector<StewardOption>{c.option});
        page.Check(c.option)->setChecked(true);
        page.Number(SPEAK_HP_BELOW)->setValue(40);
        page.Apply();
        EXPECT_EQ(options.IsOn(c.option), c.allowed);
        EXPECT_EQ(StewardOptions::Load(files.MainIni).IsOn(c.option), c.allowed);
        EXPECT_EQ(StewardOptions::Load(files.MainIni).Get(SPEAK_HP_BELOW), 40);
    }
}

} // namespace
} // namespace steward
