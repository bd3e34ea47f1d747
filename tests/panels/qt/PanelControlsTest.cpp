#include "panels/StatusPanel.h"
#include "panels/qt/MultiControlWidget.h"
#include "panels/qt/PanelResources.h"
#include "panels/qt/StatusPanelView.h"
#include "panels/qt/ToolButtons.h"

#include <QImage>
#include <gtest/gtest.h>

#include <memory>

namespace steward {
namespace {

const GaugeColors Colors{0xFFFFFF, 0x5ADC5A, 0x5F5F5F};
const QRgb Grey = qRgb(0x5F, 0x5F, 0x5F);

QImage Render(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    widget.render(&image);
    return image;
}

class PanelControlsTest : public ::testing::Test {
  protected:
    QImage Paint(std::unique_ptr<ControlHandler> handler, int width, int height,
                 const char* picture = nullptr)
    {
        MultiControl control(nullptr, std::move(handler), resources, picture);
        control.resize(width, height);
        return Render(control);
    }

    PanelResources resources;
};

// Each control paints its state through the real canvas and pictures.
TEST_F(PanelControlsTest, GaugesCompassFigureIconsTextBoxAndToolButtons)
{
    Gauge gauge("Hp:", StatusPanel::BoxGaugeFlags, true, Colors);
    gauge.SetMax(100);
    gauge.SetValue(50);
    const QImage image =
        Paint(std::make_unique<GaugeHandler>(gauge, resources.Font().Grid(), nullptr), 60, 16);
    EXPECT_EQ(image.pixel(0, 0), qRgb(0x80, 0x80, 0x80));
    EXPECT_EQ(image.pixel(10, 8), qRgb(0x5A, 0xDC, 0x5A));
    EXPECT_EQ(image.pixel(50, 8), Grey);

    // An upright gauge writes its seconds in the alphabet: the glyph of "8" has 17 pixels, and
    // the full bar behind it is the bar colour.
    Gauge upright("RT:", StatusPanel::TimeGaugeFlags, false, Colors);
    upright.SetMax(8000);
    upright.StartCountdown(nullptr);
    const QImage seconds =
        Paint(std::make_unique<GaugeHandler>(upright, resources.Font().Grid(), nullptr), 16, 36);
    int white = 0;
    for (int y = 0; y < seconds.height(); ++y)
        for (int x = 0; x < seconds.width(); ++x)
            white += seconds.pixel(x, y) == qRgb(255, 255, 255);
    EXPECT_EQ(white, 17);
    EXPECT_EQ(seconds.pixel(2, 2), qRgb(0x5A, 0xDC, 0x5A));

    struct Case {
        std::uint32_t masks;
        QRgb north;
    } cases[] = {{0x1, qRgb(150, 227, 129)}, {0x10001, qRgb(242, 244, 102)}, {0x0, Grey}};
    for (const Case& c : cases) {
        CompassState compass;
        compass.SetExits(c.masks);
        EXPECT_EQ(
            Paint(std::make_unique<CompassHandler>(compass), 62, 43, "IDB_COMPASS").pixel(39, 10),
            c.north)
            << c.masks;
    }

    FigureState figure;
    figure.SetState(FIGURE_SITTING);
    EXPECT_EQ(Paint(std::make_unique<FigureHandler>(figure), 46, 38).pixel(0, 0), Grey);
    figure.SetState(FIGURE_STANDING | FIGURE_BLEEDING);
    EXPECT_EQ(Paint(std::make_unique<FigureHandler>(figure), 46, 38).pixel(0, 0), qRgb(255, 0, 0));

    // An icon shows the half of its picture for its state.
    IconState icon;
    const QImage away = Paint(std::make_unique<IconHandler>(icon), 14, 14, "IDB_SMALL_SWORD");
    icon.SetState(1);
    const QImage held = Paint(std::make_unique<IconHandler>(icon), 14, 14, "IDB_SMALL_SWORD");
    BitmapImage picture("IDB_SMALL_SWORD", true);
    EXPECT_EQ(held, picture.Image().copy(0, 0, 14, 14));
    EXPECT_EQ(away, picture.Image().copy(14, 0, 14, 14));

    // A text box fills its colour behind the text; a tool button shows its face.
    const QImage box = Paint(std::make_unique<TextBoxHandler>("Gold:", LABEL_BOX_COLOR), 34, 11);
    EXPECT_EQ(box.pixel(33, 10), Grey);
    EXPECT_TRUE(box.pixel(33, 10) != box.pixel(2, 4) || box.pixel(3, 5) != Grey);

    int sent = 0;
    QWidget frame;
    ToolButtons buttons(frame, resources, [&](int command) { sent = command; });
    ToolButton& sword = buttons.Button(0);
    BitmapImage face("IDB_SWORD", true);
    EXPECT_EQ(Render(sword), face.Image().copy(0, 0, 26, 26));
    sword.setDown(true);
    EXPECT_EQ(Render(sword), face.Image().copy(26, 0, 26, 26));
    sword.setDown(false);
    sword.click();
    EXPECT_EQ(sent, 1806);
    EXPECT_EQ(sword.toolTip(), QStringLiteral("Ready your weapon"));
}

} // namespace
} // namespace steward
