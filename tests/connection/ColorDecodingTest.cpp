#include "connection/DecoderFixture.h"

namespace steward {
namespace {

using testing::Lines;

class ColorDecodingTest : public testing::DecoderTest {
  protected:
    std::string Decode(const std::string& raw, unsigned char saysColor = 10)
    {
        settings.SaysColor = saysColor;
        sink.lines.clear();
        decoder.DecodeGameLine(raw.c_str());
        EXPECT_EQ(sink.lines.size(), 1u);
        return sink.lines.empty() ? std::string() : sink.lines.back();
    }
};

struct Case {
    const char* name;
    std::string raw;
    unsigned char saysColor;
    std::string decoded;
};

const Case CASES[] = {
    {"plain text", "You see a tree.\r\n", 10, "You see a tree.\r\n"},
    {"speech with background",
     "T\x1B"
     "1xyU\x1B"
     "0xy\r\n",
     0x1A, "T\x91\x8AU\xA1\xA0\r\n"},
    {"speech with default colour",
     "T\x1B"
     "1xyU\x1B"
     "0xy\r\n",
     10, "T\x8AU\xA0\r\n"},
    {"token bytes x and y are never read",
     "\x1B"
     "1\x1B\x1B"
     "a\x1B"
     "0\n\r",
     10,
     "\x8A"
     "a\xA0"},
    {"off with nothing open",
     "a\x1B"
     "0xyb",
     10,
     "a\xA0"
     "b"},
    {"off with nothing open ignores the colour",
     "\x1B"
     "0xy",
     0x1A, "\xA0"},
    {"two on in a row close the first",
     "\x1B"
     "1xy\x1B"
     "1xyA",
     10,
     "\x8A\xA0\x8A"
     "A"},
    {"CR closes an open colour",
     "\x1B"
     "1xyhi\r\n",
     10, "\x8Ahi\xA0\r\n"},
    {"CR then off closes twice",
     "\x1B"
     "1xya\rb\x1B"
     "0xy\n",
     0x1A,
     "\x91\x8A"
     "a\xA1\xA0\rb\xA1\xA0\n"},
    {"colour left open at the line end",
     "\x1B"
     "1xyhi\n",
     10, "\x8Ahi\n"},
    {"ESC before any other byte stays", "\x1B[0m", 10, "\x1B[0m"},
    {"ESC ESC then selector keeps the first ESC",
     "\x1B\x1B"
     "1xyz",
     10, "\x1B\x8Az"},
    {"status record passes", "\x1B\x1B>00140014\x1B\r\n", 10, "\x1B\x1B>00140014\x1B\r\n"},
    {"ESC at the line end", "a\x1B", 10, "a\x1B"},
    {"token cut after its selector",
     "a\x1B"
     "1",
     10, "a\x8A"},
    {"high bit is cleared", "\xC1\xE2\xFF", 10, "Ab\x7F"},
    {"0x8D is no CR",
     "\x1B"
     "1xy\x8D\n",
     10, "\x8A\r\n"},
    {"0x9B is no ESC",
     "\x9B"
     "1xy",
     10,
     "\x1B"
     "1xy"},
    {"0xB1 is no selector", "\x1B\xB1xy", 10,
     "\x1B"
     "1xy"},
    {"0x80 ends the text for later stages",
     "ab\x80"
     "cd\n",
     10, "ab"},
};

TEST_F(ColorDecodingTest, TokensBecomeColorCodesAndTextLosesBitSeven)
{
    for (const Case& c : CASES)
        EXPECT_EQ(Decode(c.raw, c.saysColor), c.decoded) << c.name;
}

TEST_F(ColorDecodingTest, ColourStateDoesNotSurviveTheLine)
{
    Decode("\x1B"
           "1xyopen\n",
           0x1A);
    EXPECT_EQ(Decode("\x1B"
                     "0xy\r\n",
                     0x1A),
              "\xA0\r\n");
}

TEST_F(ColorDecodingTest, LaterLinesAreUntouchedByA0x80)
{
    EXPECT_EQ(Receive({"ab\x80"
                       "cd\nnext\n"},
                      false),
              (Lines{"ab", "next\n"}));
}

TEST_F(ColorDecodingTest, TokenCutByABlockEndBreaksWhileNotHeld)
{
    struct CutCase {
        Lines blocks;
        Lines notHeld;
        Lines held;
    };
    const CutCase cases[] = {
        {{"say \x1B", "1xyhi\x1B"
                      "0xy\r\n"},
         {"say \x1B", "1xyhi\xA0\r\n"},
         {"say \x8Ahi\xA0\r\n"}},
        {{"say \x1B"
          "1",
          "xyhi\r\n"},
         {"say \x8A", "xyhi\r\n"},
         {"say \x8Ahi\xA0\r\n"}},
        {{"say \x1B"
          "1xy",
          "hi\r\n"},
         {"say \x8A", "hi\r\n"},
         {"say \x8Ahi\xA0\r\n"}},
        {{"\x1B"
          "1xyhi",
          "\x1B"
          "0xy\r\n"},
         {"\x8Ahi", "\xA0\r\n"},
         {"\x8Ahi\xA0\r\n"}},
    };
    for (const CutCase& c : cases) {
        EXPECT_EQ(Receive(c.blocks, false), c.notHeld) << c.blocks[0];
        EXPECT_EQ(Receive(c.blocks, true), c.held) << c.blocks[0];
    }
}

TEST_F(ColorDecodingTest, TokenCutByTheLineLimitIsNotRepaired)
{
    const std::string text(4095, 'a');
    EXPECT_EQ(Receive({text.substr(0, 2048), text.substr(2048),
                       "\x1B"
                       "1xyU\r\n"},
                      true),
              (Lines{text + "\x8A", "xyU\r\n"}));
}

} // namespace
} // namespace steward
