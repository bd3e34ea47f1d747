#include "LineReader.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

namespace {

QByteArrayList Lines(const QByteArray& input)
{
    LineReader reader;
    QByteArrayList lines;
    reader.Feed(input.constData(), input.size(), [&](const QByteArray& l) { lines.append(l); });
    return lines;
}

struct Case {
    const char* name;
    QByteArray input;
    QByteArrayList expected;
};

TEST(LineReader, SplitsEveryLineEndConventionIntoOneLinePerEnter)
{
    const Case cases[] = {
        {"LF CR", "look\n\rsay hi\n\r", {"look", "say hi"}},
        {"CR LF", "look\r\nsay hi\r\n", {"look", "say hi"}},
        {"LF", "look\nsay hi\n", {"look", "say hi"}},
        {"empty lines kept", "\n\r\n\r", {"", ""}},
        {"two LF are two lines", "a\n\nb\n", {"a", "", "b"}},
        {"partial line waits", "loo", {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Lines(c.input), c.expected) << c.name;
}

TEST(LineReader, DropsControlAndNonAsciiBytes)
{
    EXPECT_EQ(Lines(QByteArray("lo\0o\x1b\x07k\x80\xff\n", 10)), QByteArrayList{"look"});
}

TEST(LineReader, CutsOverlongLinesAndKeepsTheNextLine)
{
    const QByteArrayList lines = Lines(QByteArray(100000, 'x') + "\nlook\n");
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].size(), LineReader::MaxLineLength);
    EXPECT_EQ(lines[1], "look");
}

TEST(LineReader, KeepsALineThatArrivesInPieces)
{
    LineReader reader;
    QByteArrayList lines;
    auto sink = [&](const QByteArray& l) { lines.append(l); };
    reader.Feed("lo", 2, sink);
    reader.Feed("ok\n", 3, sink);
    reader.Feed("\r", 1, sink);
    EXPECT_EQ(lines, QByteArrayList{"look"});
}

} // namespace
