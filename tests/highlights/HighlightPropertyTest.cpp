#include "HighlightDoubles.h"
#include "highlights/HighlightStore.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

namespace steward::testing {
namespace {

constexpr int LISTS = 20000;
constexpr int LINES_PER_LIST = 5;
constexpr std::size_t LINE_ROOM = 512;

// Random lists and lines over a few letters of both cases, so that hits, overlaps and
// repeats are frequent, with ColorCodes, quotes and markers mixed in.
class CaseMaker {
  public:
    explicit CaseMaker(unsigned seed) : random_(seed) {}

    std::string Entry(const std::vector<std::string>& earlier)
    {
        if (!earlier.empty() && Chance(10))
            return earlier[Below(earlier.size())];
        if (Chance(50))
            return Chance(2) ? "" : "{open";
        std::string text;
        if (Chance(4))
            text += Sound();
        for (const char marker : {'$', '*', '@'}) {
            if (Chance(marker == '$' ? 8 : 3))
                text += marker;
        }
        const std::size_t length = 1 + Below(Chance(5) ? 6 : 3);
        for (std::size_t i = 0; i < length; ++i)
            text += Byte(Chance(25));
        return text;
    }

    std::string Line()
    {
        std::string line;
        const std::size_t length = Below(40);
        while (line.size() < length) {
            if (!line.empty() && Chance(6))
                line += line.substr(Below(line.size()), 1 + Below(4));
            else
                line += Byte(Chance(8));
        }
        if (Chance(30))
            line += '"';
        if (Chance(4))
            line += "\r\n";
        return line;
    }

    unsigned char Color() { return static_cast<unsigned char>(Chance(3) ? Below(256) : 14); }
    std::size_t Capacity(std::size_t length)
    {
        return Chance(4) ? length + 1 + Below(12) : LINE_ROOM;
    }

  private:
    std::string Sound()
    {
        const char* sounds[] = {"{}", "{s0}", "{s1}", "{s2}"};
        return sounds[Below(4)];
    }
    char Byte(bool rare)
    {
        static const char common[] = "aAbB ab-";
        static const char unusual[] = "\x80\x8E\x91\xA0\xA1\xA3\xA4\xE9\"{}$*@'_1";
        return rare ? unusual[Below(sizeof unusual - 1)] : common[Below(sizeof common - 1)];
    }
    std::size_t Below(std::size_t n)
    {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_);
    }
    bool Chance(std::size_t oneIn) { return Below(oneIn) == 0; }

    std::mt19937 random_;
};

// Fills the list with up to 12 random entries and returns their texts.
std::vector<std::string> RandomList(CaseMaker& make, HighlightList& list, std::size_t count)
{
    std::vector<std::string> texts;
    list.Clear();
    for (std::size_t i = 0; i < count; ++i) {
        texts.push_back(make.Entry(texts));
        list.SetColor(i, make.Color());
        list.SetText(i, texts.back().c_str());
    }
    return texts;
}

// Both lists of the session through their shared index, against the plain form run on the
// strings and then on the names.
TEST(HighlightProperty, TheIndexGivesTheBytesAndSoundsOfThePlainForm)
{
    CaseMaker make(20261123);
    HighlightStore lists;
    int cases = 0;
    for (int round = 0; round < LISTS; ++round) {
        const auto strings = RandomList(make, lists.StringHighlights, round % 13);
        const auto names = RandomList(make, lists.NameHighlights, round % 3 == 0 ? round % 5 : 0);
        for (int n = 0; n < LINES_PER_LIST; ++n, ++cases) {
            const std::string line = make.Line();
            const std::size_t capacity = make.Capacity(line.size());
            char plain[LINE_ROOM], fast[LINE_ROOM];
            std::memcpy(plain, line.c_str(), line.size() + 1);
            std::memcpy(fast, line.c_str(), line.size() + 1);
            RecordedSounds plainSounds, fastSounds;
            ApplyHighlights(lists.StringHighlights, plain, capacity, false, plainSounds);
            ApplyHighlights(lists.NameHighlights, plain, capacity, false, plainSounds);
            lists.ApplyHighlights(fast, capacity, false, fastSounds);
            if (std::strcmp(plain, fast) != 0 || plainSounds.played != fastSounds.played) {
                using ::testing::PrintToString;
                FAIL() << "case " << cases << " line " << PrintToString(line) << " capacity "
                       << capacity << "\nstrings " << PrintToString(strings) << "\nnames "
                       << PrintToString(names) << "\nplain " << PrintToString(std::string(plain))
                       << "\nfast  " << PrintToString(std::string(fast));
            }
        }
    }
    EXPECT_GE(cases, 100000);
}

} // namespace
} // namespace steward::testing
