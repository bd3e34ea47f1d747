#include "panels/BitmapFontGrid.h"
#include "panels/CompassState.h"
#include "panels/MultiControl.h"
#include "panels/PanelCanvas.h"
#include "panels/PanelStates.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace steward {
namespace {

// Writes each drawing call as one line of text.
class RecordingCanvas : public PanelCanvas {
  public:
    void FillColor(const Rect& r, std::uint32_t color) override
    {
        Add("fill %d,%d,%d,%d %06x", r.left, r.top, r.right, r.bottom, color);
    }
    void DrawLine(int x0, int y0, int x1, int y1, std::uint32_t color) override
    {
        Add("line %d,%d-%d,%d %06x", x0, y0, x1, y1, color);
    }
    void DrawCell(const FontCell& cell, int x, int y, std::uint32_t color) override
    {
        Add("cell %d,%d at %d,%d %06x", cell.SourceX, cell.GlyphY, x, y, color);
    }
    void DrawBoxText(int x, int y, const char* text, std::uint32_t color) override
    {
        Add("box %d,%d %s %06x", x, y, text, color);
    }
    void DrawPicture(int x, int y, int width, int height, int sourceX, int sourceY) override
    {
        Add("picture %d,%d %dx%d from %d,%d", x, y, width, height, sourceX, sourceY);
    }
    void DrawMappedBitmap(int id, int x, int y) override { Add("mapped %d at %d,%d", id, x, y); }

    // Calls whose text starts with prefix.
    std::vector<std::string> Only(const std::string& prefix) const
    {
        std::vector<std::string> out;
        for (const std::string& call : calls)
            if (call.rfind(prefix, 0) == 0)
                out.push_back(call);
        return out;
    }

    std::vector<std::string> calls;

  private:
    template <typename... Args> void Add(const char* format, Args... args)
    {
        char line[160];
        std::snprintf(line, sizeof line, format, args...);
        calls.emplace_back(line);
    }
};

const BitmapFontGrid Alphabet(ALPHABET_WIDTH, ALPHABET_HEIGHT, ALPHABET_ADVANCES);

TEST(BitmapFontGridTest, CellsOfCharacters)
{
    struct Case {
        char c;
        int sourceX, glyphY, maskY;
    } cases[] = {{' ', 0, 0, 33},    {'A', 8, 11, 44},   {'4', 160, 0, 33}, {'\x7f', 248, 22, 55},
                 {'\x80', 0, 0, 33}, {'\x1f', 0, 0, 33}, {'\xff', 0, 0, 33}};
    for (const Case& c : cases) {
        const FontCell cell = Alphabet.CellOf(c.c);
        EXPECT_EQ(cell.SourceX, c.sourceX) << int(c.c);
        EXPECT_EQ(cell.GlyphY, c.glyphY) << int(c.c);
        EXPECT_EQ(cell.MaskY, c.maskY) << int(c.c);
    }
}

TEST(BitmapFontGridTest, WidthsAndPlaces)
{
    struct Case {
        const char* text;
        int width;
    } cases[] = {{"", 0},        {"44444444", 64}, {"Hp:", 18},
                 {"a\x80|", 13}, {"30/100", 43},   {"north", 35}};
    for (const Case& c : cases)
        EXPECT_EQ(Alphabet.TextWidth(c.text), c.width) << c.text;
    // Two stacked digits take 22 pixels, centred in an upright bar's client area.
    const FontPoint stacked = Alphabet.StackedOrigin({1, 1, 17, 35}, "12");
    EXPECT_EQ(stacked.X, 5);
    EXPECT_EQ(stacked.Y, 7);
    const FontPoint centred = Alphabet.CenteredOrigin({0, 0, 60, 16}, "45/100");
    EXPECT_EQ(centred.X, 8);
    EXPECT_EQ(centred.Y, 2);
}

TEST(BitmapFontGridTest, TextSkipsTheSpaceButAdvances)
{
    RecordingCanvas canvas;
    DrawText(canvas, Alphabet, 10, 2,
             "1 \x90"
             "2",
             0xFFFFFF);
    EXPECT_EQ(canvas.calls,
              (std::vector<std::string>{"cell 136,0 at 10,2 ffffff", "cell 144,0 at 23,2 ffffff"}));
}

// A 60 by 16 gauge with a client area of 58 by 14 inside its one-pixel frame: the background,
// then a bar up to its right edge (none: -1) with three ticks.
TEST(GaugeDrawingTest, BarStaysInsideTheClientArea)
{
    const struct {
        const char* name;
        std::int32_t minimum, maximum, value;
        int barRight;
    } cases[] = {{"empty", 0, 0, 0, -1},
                 {"thirty of a hundred", 0, 100, 30, 18},
                 {"too little for a pixel", 0, 100, 1, 1},
                 {"at maximum", 0, 100, 100, 59},
                 {"beyond maximum", 0, 100, 32767, 59},
                 {"negative", 0, 100, -5, -1},
                 {"minimum above maximum", 50, 40, 45, -1},
                 {"equal ends fill without dividing", 5, 5, 6, 59},
                 {"value past the range's length", 50, 100, 90, 59}};
    for (const auto& c : cases) {
        Gauge gauge("Hp:", GF_SHOWVALUE | GF_SHOWMAX, true, {0xFFFFFF, 0x5ADC5A, 0x5F5F5F});
        gauge.SetMin(c.minimum);
        gauge.SetMax(c.maximum);
        gauge.SetValue(c.value);
        GaugeHandler handler(gauge, Alphabet, nullptr);
        RecordingCanvas canvas;
        handler.Paint(canvas, 60, 16);
        std::vector<std::string> fills{"fill 1,1,59,15 5f5f5f"};
        if (c.barRight >= 0)
            fills.push_back("fill 1,1," + std::to_string(c.barRight) + ",15 5adc5a");
        EXPECT_EQ(canvas.Only("fill"), fills) << c.name;
        EXPECT_EQ(canvas.Only("line").size(), c.barRight >= 0 ? 7u : 4u) << c.name;
    }
}

TEST(GaugeDrawingTest, OneBoxGaugeRecorded)
{
    Gauge gauge("Hp:", GF_BOXES | GF_SHOWVALUE | GF_SHOWMAX, true, {0xFFFFFF, 0x5ADC5A, 0x5F5F5F});
    gauge.SetMax(100);
    gauge.SetValue(30);
    PanelText valueBox;
    GaugeHandler handler(gauge, Alphabet, &valueBox);
    RecordingCanvas canvas;
    handler.Paint(canvas, 62, 16);
    EXPECT_EQ(canvas.calls,
              (std::vector<std::string>{"line 0,15-0,0 808080", "line 0,0-61,0 808080",
                                        "line 61,0-61,15 808080", "line 61,15--1,15 808080",
                                        "fill 1,1,61,15 5f5f5f", "fill 1,1,19,15 5adc5a",
                                        "line 16,14-16,12 ffffff", "line 31,14-31,12 ffffff",
                                        "line 46,14-46,12 ffffff"}));
    EXPECT_STREQ(valueBox.Text(), "30/100");
    EXPECT_FALSE(handler.NeedsPaint());
    gauge.SetValue(30);
    EXPECT_FALSE(handler.NeedsPaint());
    gauge.SetValue(31);
    EXPECT_TRUE(handler.NeedsPaint());
}

TEST(GaugeDrawingTest, CountdownStacksItsSeconds)
{
    Gauge gauge("RT:", GF_SHOWVALUE | GF_HIDEATMIN | GF_NOLABELPAINT | GF_NOTICKS, false,
                {0xFFFFFF, 0xFA5A5A, 0x5F5F5F});
    gauge.SetMax(12000);
    gauge.StartCountdown(nullptr);
    GaugeHandler handler(gauge, Alphabet, nullptr);
    RecordingCanvas canvas;
    handler.Paint(canvas, 16, 36);
    EXPECT_EQ(canvas.Only("cell"),
              (std::vector<std::string>{"cell 136,0 at 5,7 ffffff", "cell 144,0 at 5,18 ffffff"}));
}

TEST(CompassDrawingTest, ZonesLitFromExitBits)
{
    struct Case {
        std::uint32_t masks;
        std::vector<std::string> zones;
    } cases[] = {
        {0x00000000, {}},
        {0x00000001, {"picture 32,3 15x13 from 94,3"}},
        {0x00010001, {"picture 32,3 15x13 from 156,3"}},
        {0x00010000, {}},
        {0x0000F800, {}},
        {0x04000700,
         {"picture 6,17 9x9 from 68,17", "picture 3,3 15x13 from 65,3",
          "picture 3,27 15x13 from 127,27"}},
        {0x000000A2,
         {"picture 47,5 9x9 from 109,5", "picture 23,29 9x9 from 85,29",
          "picture 23,5 9x9 from 85,5"}},
    };
    for (const Case& c : cases) {
        CompassState compass;
        compass.SetExits(c.masks);
        CompassHandler handler(compass);
        RecordingCanvas canvas;
        handler.Paint(canvas, 62, 43);
        std::vector<std::string> expected{"picture 0,0 62x43 from 0,0"};
        expected.insert(expected.end(), c.zones.begin(), c.zones.end());
        EXPECT_EQ(canvas.calls, expected) << std::hex << c.masks;
        EXPECT_FALSE(handler.NeedsPaint()) << std::hex << c.masks;
    }
    // A screen reader hears the lit exits by name.
    CompassState compass;
    compass.SetExits(0x00010101);
    char text[64];
    CompassHandler(compass).AccessibleValue(text, sizeof text);
    EXPECT_STREQ(text, "north (special), out");
    TextBoxHandler("12", 0).AccessibleValue(text, sizeof text);
    EXPECT_STREQ(text, "") << "a text box has a name and no value";
}

TEST(FigureDrawingTest, BaseAndOverlaysForEachPostureBit)
{
    struct Case {
        std::uint32_t state;
        std::vector<std::string> calls;
    } cases[] = {
        {0x1, {"mapped 123 at 0,0"}},
        {0x2, {"mapped 124 at 0,0"}},
        {0x4, {"mapped 122 at 0,0"}},
        {0x40000, {"mapped 118 at 0,0"}},
        {0x108, {"mapped 120 at 0,0"}},
        {0x8,
         {"mapped 123 at 0,0", "mapped 117 at 2,6", "mapped 117 at 8,0", "mapped 117 at 30,0",
          "mapped 117 at 36,6"}},
        {0x80084, {"mapped 122 at 0,0", "mapped 121 at 6,21", "mapped 125 at 7,21"}},
        {0x41,
         {"mapped 123 at 0,0", "line 0,37-0,0 0000ff", "line 0,0-45,0 0000ff",
          "line 45,0-45,37 0000ff", "line 45,37--1,37 0000ff", "mapped 119 at 5,14",
          "mapped 119 at 34,14"}},
    };
    for (const Case& c : cases) {
        FigureState figure;
        figure.SetState(c.state);
        FigureHandler handler(figure);
        RecordingCanvas canvas;
        handler.Paint(canvas, 46, 38);
        EXPECT_EQ(canvas.calls, c.calls) << std::hex << c.state;
    }
}

TEST(ControlIdTest, IdsAreUniqueFromTheFirst)
{
    const int first = NextControlId();
    EXPECT_GE(first, FIRST_CONTROL_ID);
    EXPECT_EQ(NextControlId(), first + 1);
}

} // namespace
} // namespace steward
