#include "FloodSource.h"
#include "LineReader.h"
#include "StatusRecord.h"

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

// Every field at its offset; the round time is its seconds plus one, or zero when idle; values
// are clamped so that no field reads as negative.
TEST(StatusRecord, PutsEveryFieldAtItsOffsetClampedAndTheRoundTimeAsSecondsPlusOne)
{
    StatusFields f{'>', 45, 100, 7, 30, 20, 21, 5, 6, 1234, 3, 14, 80, 1, true, false, 3};
    const QByteArray record = FormatStatusRecord(f);
    ASSERT_EQ(record.size(), StatusRecordLength);
    const std::pair<int, const char*> fields[] = {
        {0, "\x1b\x1b>"}, {3, "002D"},  {7, "0064"},      {11, "0007"}, {15, "001E"},
        {19, "0014"},     {23, "0015"}, {27, "0005"},     {31, "0006"}, {35, "000004D2"},
        {43, "00000003"}, {51, "000E"}, {55, "0050"},     {61, "1"},    {62, "1"},
        {63, "0"},        {64, "04"},   {67, "\x1b\r\n"},
    };
    for (const auto& [offset, bytes] : fields)
        EXPECT_EQ(record.mid(offset, qstrlen(bytes)), bytes) << "offset " << offset;

    for (const auto& [seconds, expected] :
         {std::pair{0, "00"}, std::pair{1, "02"}, std::pair{200, "7F"}}) {
        f.roundTimeSeconds = seconds;
        EXPECT_EQ(FormatStatusRecord(f).mid(StatusRoundTimeOffset, 2), expected) << seconds;
    }

    f.hitPoints = -5;
    f.hitPointsMax = 70000;
    f.silver = qint64(1) << 40;
    const QByteArray clamped = FormatStatusRecord(f);
    EXPECT_EQ(clamped.mid(3, 4), "0000");
    EXPECT_EQ(clamped.mid(7, 4), "7FFF");
    EXPECT_EQ(clamped.mid(35, 8), "7FFFFFFF");
    EXPECT_EQ(clamped.size(), StatusRecordLength);
}

TEST(FloodSource, EndsOnceAndOnlyOnceWithTheEndLineOnALineOfItsOwn)
{
    // Every size cuts the last line somewhere else: inside a status record, a colour, a word.
    for (qint64 total = 1; total <= 400; ++total) {
        SCOPED_TRACE(total);
        FloodSource source(total, 3);
        QByteArray all;
        while (!source.Done())
            all += source.Next(40);
        ASSERT_EQ(all.size(), total + qstrlen(FloodSource::EndLine));
        ASSERT_TRUE(all.endsWith("\nFLOOD-END\r\n"));
        EXPECT_TRUE(source.Next(40).isEmpty());
    }
}

} // namespace
