#include "session/LogNames.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace steward {
namespace {

class FakeFiles : public FileProbe {
  public:
    bool Exists(const char* path) const override { return files.count(path) != 0; }
    std::set<std::string> files;
};

TEST(DatedLogName, FirstOfTheDayIsOne)
{
    FakeFiles files;
    char name[PATH_SIZE];
    ASSERT_TRUE(DatedLogName("/data", {2026, 3, 7}, files, name));
    EXPECT_STREQ(name, "/data/Thornmere Log 3-07-2026 (1).Txt");
}

TEST(DatedLogName, TakesTheNextFreeNumber)
{
    FakeFiles files;
    files.files = {"/d/Thornmere Log 12-24-2026 (1).Txt", "/d/Thornmere Log 12-24-2026 (2).Txt"};
    char name[PATH_SIZE];
    ASSERT_TRUE(DatedLogName("/d", {2026, 12, 24}, files, name));
    EXPECT_STREQ(name, "/d/Thornmere Log 12-24-2026 (3).Txt");
}

class AllFiles : public FileProbe {
  public:
    bool Exists(const char*) const override { return true; }
};

TEST(DatedLogName, StopsAtTheLastNumber)
{
    char name[PATH_SIZE];
    ASSERT_TRUE(DatedLogName("/d", {2026, 1, 1}, AllFiles{}, name));
    EXPECT_STREQ(name, "/d/Thornmere Log 1-01-2026 (9998).Txt");
}

TEST(DatedLogName, RefusesAFolderTooLongForTheName)
{
    std::string folder(PATH_SIZE, 'x');
    char name[PATH_SIZE];
    EXPECT_FALSE(DatedLogName(folder.c_str(), {2026, 1, 1}, FakeFiles{}, name));
}

} // namespace
} // namespace steward
