#include "config/Settings.h"
#include "config/BinaryRecords.h"

#include <gtest/gtest.h>

#include <cstring>

namespace steward {
namespace {

TEST(SettingsBytes, DefaultsLandAtTheirOffsetsAndFieldsAreLittleEndian)
{
    const SettingsBytes b = Settings{}.ToBytes();
    SettingsBytes expected{};
    expected[4] = expected[5] = expected[6] = 0xFF; // white text
    expected[8] = 1;                                // BufferedUpdates
    expected[12] = 1;                               // ShowCursor
    expected[13] = 1;                               // AutoArrange
    expected[14] = '.';                             // CommandPrefix
    expected[18] = 1;                               // reserved, written as 1
    expected[20] = 0x00;                            // ReceiveChunkSize 1024
    expected[21] = 0x04;
    expected[25] = 1;  // LocalEcho
    expected[26] = 10; // SaysColor
    expected[27] = 11; // WhispersColor
    expected[28] = 40; // ThoughtColor
    expected[29] = 40; // CompressedThoughtColor
    expected[36] = 4;  // MinCommandLength
    EXPECT_EQ(b, expected);
    SettingsBytes in{};
    for (std::size_t i = 0; i < in.size(); ++i)
        in[i] = static_cast<std::uint8_t>(i * 7 + 3);
    EXPECT_EQ(Settings::FromBytes(in).ToBytes(), in) << "every byte survives a round trip";
    in = Settings{}.ToBytes();
    in[0] = 0x11;
    in[1] = 0x22;
    in[2] = 0x33;
    in[20] = 0x88;
    in[21] = 0x13; // 5000
    in[36] = 0xFD;
    in[37] = 0xFF; // -3
    const Settings s = Settings::FromBytes(in);
    EXPECT_EQ(s.DefaultBackColor, 0x332211u);
    EXPECT_EQ(s.ReceiveChunkSize, 5000);
    EXPECT_EQ(s.MinCommandLength, -3);
}

TEST(CheckSettings, BringsLoadedValuesIntoRange)
{
    const struct {
        std::uint8_t displayMode;
        std::int16_t minCommandLength;
        std::int32_t receiveChunkSize;
        std::uint8_t wantDisplayMode;
        std::int16_t wantMinCommandLength;
        std::int32_t wantReceiveChunkSize;
    } cases[] = {
        {0, 4, 1024, 0, 4, 1024},    {2, 0, 256, 2, 0, 256},           {3, -3, 100, 0, 0, 256},
        {255, -1, 5000, 0, 0, 2048}, {1, 30000, 2048, 1, 30000, 2048}, {1, 1, -7, 1, 1, 256},
    };
    for (const auto& c : cases) {
        Settings s;
        s.DisplayMode = c.displayMode;
        s.MinCommandLength = c.minCommandLength;
        s.ReceiveChunkSize = c.receiveChunkSize;
        CheckSettings(s);
        EXPECT_EQ(s.DisplayMode, c.wantDisplayMode) << int(c.displayMode);
        EXPECT_EQ(s.MinCommandLength, c.wantMinCommandLength) << c.minCommandLength;
        EXPECT_EQ(s.ReceiveChunkSize, c.wantReceiveChunkSize) << c.receiveChunkSize;
    }
}

TEST(BinaryRecords, FontPlacementAndGaugeRecordsKeepTheirLayout)
{
    LogFontRecord f;
    f.lfHeight = -13;
    f.lfWeight = 700;
    f.lfItalic = 1;
    f.lfPitchAndFamily = 0x31;
    std::memcpy(f.lfFaceName, "Courier New", 12);
    const LogFontBytes b = f.ToBytes();
    EXPECT_EQ(b[0], 0xF3);
    EXPECT_EQ(b[3], 0xFF);
    EXPECT_EQ(b[16], 0xBC);
    EXPECT_EQ(b[17], 0x02);
    EXPECT_EQ(b[20], 1);
    EXPECT_EQ(b[27], 0x31);
    EXPECT_EQ(b[28], 'C');
    EXPECT_EQ(LogFontRecord::FromBytes(b).ToBytes(), b);
    WindowPlacementRecord p;
    p.showCmd = 3;
    p.rcNormalPosition = {10, 20, 630, 470};
    const WindowPlacementBytes w = p.ToBytes();
    EXPECT_EQ(w[0], 44);
    EXPECT_EQ(w[8], 3);
    EXPECT_EQ(w[28], 10);
    EXPECT_EQ(w[40], 0xD6);
    EXPECT_EQ(w[41], 0x01);
    const WindowPlacementRecord back = WindowPlacementRecord::FromBytes(w);
    EXPECT_EQ(back.rcNormalPosition.right, 630);
    EXPECT_EQ(back.ToBytes(), w);
    const GaugeColorBytes g = GaugeColorsToBytes({0x0000FF, 0x00FF00, 0xFF0000});
    EXPECT_EQ(g[0], 0xFF);
    EXPECT_EQ(g[5], 0xFF);
    EXPECT_EQ(g[10], 0xFF);
    GaugeColorBytes noisy = g; // only 12 of the 20 bytes are read
    for (std::size_t i = GAUGE_COLOR_USED_SIZE; i < noisy.size(); ++i)
        noisy[i] = 0xAB;
    const GaugeColors colors = GaugeColorsFromBytes(noisy);
    EXPECT_EQ(colors.GaugeTextColor, 0x0000FFu);
    EXPECT_EQ(colors.BarColor, 0x00FF00u);
    EXPECT_EQ(colors.GaugeBackColor, 0xFF0000u);
}

} // namespace
} // namespace steward
