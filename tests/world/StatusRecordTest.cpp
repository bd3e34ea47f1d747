#include "StatusRecord.h"

#include <gtest/gtest.h>

namespace {

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

} // namespace
