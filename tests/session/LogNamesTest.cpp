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

class AllFiles : public FileProbe {
  public:
    bool Exists(const char*) const override { return true; }
};

TEST(DatedLogName, TakesTheFirstFreeNumberUpToTheLast)
{
    const FakeFiles none;
    const AllFiles all;
    FakeFiles taken;
    taken.files = {"/d/Thornmere Log 12-24-2026 (1).Txt", "/d/Thornmere Log 12-24-2026 (2).Txt"};
    const std::string deep(300, 'x');
    const struct {
        std::string folder;
        LocalDate date;
        const FileProbe& files;
        std::string name;
    } cases[] = {
        {"/data", {2026, 3, 7}, none, "/data/Thornmere Log 3-07-2026 (1).Txt"},
        {"/d", {2026, 12, 24}, taken, "/d/Thornmere Log 12-24-2026 (3).Txt"},
        {"/d", {2026, 1, 1}, all, "/d/Thornmere Log 1-01-2026 (9998).Txt"},
        {deep, {2026, 1, 1}, none, deep + "/Thornmere Log 1-01-2026 (1).Txt"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DatedLogName(c.folder, c.date, c.files), c.name);
}

} // namespace
} // namespace steward
