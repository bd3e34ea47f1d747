#include "config/StewardOptions.h"

#include "config/IniFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace steward {
namespace {

TEST(StewardOptionsTest, DamagedValuesReadAsDefaultsAndOtherSectionsStay)
{
    struct Row {
        const char* stored;
        std::int32_t read;
    };
    const Row rows[] = {{"1", 1}, {"0", 0}, {"2", 0}, {"-1", 0}, {"1x", 0}, {"", 0}, {"yes", 0}};
    testing::TempFolder folder;
    const std::string ini = folder.File("Thornmere.Ini");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.stored);
        IniFile file = IniFile::Parse("[Config]\nScript Path=/s\n");
        file.Set(STEWARD_SECTION, "Reconnect", row.stored);
        ASSERT_TRUE(file.Save(ini));
        StewardOptions options = StewardOptions::Load(ini);
        EXPECT_EQ(options.Get(RECONNECT_ON_DROP), row.read);
        options.Set(SPEAK, 7);
        ASSERT_TRUE(options.Save(ini));
        EXPECT_EQ(IniFile::Load(ini).Get("Config", "Script Path"), "/s");
        EXPECT_EQ(StewardOptions::Load(ini).Get(SPEAK), 1);
    }
}

} // namespace
} // namespace steward
