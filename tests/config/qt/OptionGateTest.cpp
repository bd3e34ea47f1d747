#include "config/qt/OptionsSheet.h"

#include <QCheckBox>
#include <QSpinBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <vector>

namespace steward {
namespace {

struct GateCase {
    StewardOption option;
    bool allowed;
};

TEST(OptionGateTest, ARefusedOptionIsUntickedAndStaysOffOnOk)
{
    const GateCase cases[] = {{SPEAK, false}, {SPEAK, true}, {RECONNECT_ON_DROP, true}};
    for (const GateCase& c : cases) {
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
