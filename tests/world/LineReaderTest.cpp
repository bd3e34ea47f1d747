#include "LineReader.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

namespace {

TEST(LineReader, SplitsEveryLineEndConventionDropsControlBytesAndCutsOverlongLines)
{
    const struct {
        const char* name;
        QByteArrayList pieces;
        QByteArrayList expected;
    } cases[] = {
        {"LF CR", {"look\n\rsay hi\n\r"}, {"look", "say hi"}},
        {"CR LF", {"look\r\nsay hi\r\n"}, {"look", "say hi"}},
        {"LF", {"look\nsay hi\n"}, {"look", "say hi"}},
        {"empty lines kept", {"\n\r\n\r"}, {"", ""}},
        {"two LF are two lines", {"a\n\nb\n"}, {"a", "", "b"}},
        {"partial line waits", {"loo"}, {}},
        {"a line in pieces", {"lo", "ok\n", "\r"}, {"look"}},
        {"control and non-ASCII bytes", {QByteArray("lo\0o\x1b\x07k\x80\xff\n", 10)}, {"look"}},
        {"overlong line cut",
         {QByteArray(100000, 'x') + "\nlook\n"},
         {QByteArray(LineReader::MaxLineLength, 'x'), "look"}},
    };
    for (const auto& c : cases) {
        LineReader reader;
        QByteArrayList lines;
        for (const QByteArray& piece : c.pieces)
            reader.Feed(piece.constData(), piece.size(),
                        [&](const QByteArray& l) { lines.append(l); });
        EXPECT_EQ(lines, c.expected) << c.name;
    }
}

} // namespace
