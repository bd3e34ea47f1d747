#include "StatusRecord.h"

#include <gtest/gtest.h>

namespace {

StatusFields Sample()
{
    StatusFields f;
    f.hitPoints = 45;
    f.hitPointsMax = 100;
    f.fatigue = 7;
    f.fatigueMax = 30;
    f.psi = 20;
    f.psiMax = 21;
    f.web = 5;
    f.webMax = 6;
    f.silver = 1234;
    f.gold = 3;
    f.weight = 14;
    f.weightMax = 80;
    f.posture = 1;
    f.weaponReady = true;
    f.shieldReady = false;
    f.roundTimeSeconds = 3;
    return f;
}

struct Field {
    int offset;
    const char* bytes;
};

TEST(StatusRecord, PutsEveryFieldAtItsOffset)
{
    const QByteArray record = FormatStatusRecord(Sample());
    ASSERT_EQ(record.size(), StatusRecordLength);
    const Field fields[] = {
        {0, "\x1b\x1b>"}, {3, "002D"},  {7, "0064"},      {11, "0007"}, {15, "001E"},
        {19, "0014"},     {23, "0015"}, {27, "0005"},     {31, "0006"}, {35, "000004D2"},
        {43, "00000003"}, {51, "000E"}, {55, "0050"},     {61, "1"},    {62, "1"},
        {63, "0"},        {64, "04"},   {67, "\x1b\r\n"},
    };
    for (const Field& f : fields)
        EXPECT_EQ(record.mid(f.offset, qstrlen(f.bytes)), f.bytes) << "offset " << f.offset;
}

TEST(StatusRecord, RoundTimeIsSecondsPlusOneOrZeroWhenIdle)
{
    StatusFields f = Sample();
    const std::pair<int, const char*> cases[] = {{0, "00"}, {1, "02"}, {3, "04"}, {200, "7F"}};
    for (const auto& [seconds, expected] : cases) {
        f.roundTimeSeconds = seconds;
        EXPECT_EQ(FormatStatusRecord(f).mid(StatusRoundTimeOffset, 2), expected) << seconds;
    }
}

TEST(StatusRecord, ClampsValuesSoNoFieldReadsAsNegative)
{
    StatusFields f = Sample();
    f.hitPoints = -5;
    f.hitPointsMax = 70000;
    f.silver = qint64(1) << 40;
    const QByteArray record = FormatStatusRecord(f);
    EXPECT_EQ(record.mid(3, 4), "0000");
    EXPECT_EQ(record.mid(7, 4), "7FFF");
    EXPECT_EQ(record.mid(35, 8), "7FFFFFFF");
    EXPECT_EQ(record.size(), StatusRecordLength);
}

} // namespace
