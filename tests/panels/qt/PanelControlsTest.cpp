#include "panels/StatusPanel.h"
#include "panels/qt/MultiControlWidget.h"
#include "panels/qt/PanelResources.h"
#include "panels/qt/StatusPanelView.h"
#include "panels/qt/ToolButtons.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <map>
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
    StatusPanel panel;
};

TEST_F(PanelControlsTest, GaugeDrawsFrameBarAndBackground)
{
    Gauge gauge("Hp:", StatusPanel::BoxGaugeFlags, true, Colors);
    gauge.SetMax(100);
    gauge.SetValue(50);
    const QImage image =
        Paint(std::make_unique<GaugeHandler>(gauge, resources.Font().Grid(), nullptr), 60, 16);
    EXPECT_EQ(image.pixel(0, 0), qRgb(0x80, 0x80, 0x80));
    EXPECT_EQ(image.pixel(10, 8), qRgb(0x5A, 0xDC, 0x5A));
    EXPECT_EQ(image.pixel(50, 8), Grey);
}

TEST_F(PanelControlsTest, UprightGaugeWritesItsSecondsInTheAlphabet)
{
    Gauge gauge("RT:", StatusPanel::TimeGaugeFlags, false, Colors);
    gauge.SetMax(8000);
    gauge.StartCountdown(nullptr);
    const QImage image =
        Paint(std::make_unique<GaugeHandler>(gauge, resources.Font().Grid(), nullptr), 16, 36);
    int white = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            white += image.pixel(x, y) == qRgb(255, 255, 255);
    // The glyph of "8" has 17 pixels; the full bar behind it is the bar colour.
    EXPECT_EQ(white, 17);
    EXPECT_EQ(image.pixel(2, 2), qRgb(0x5A, 0xDC, 0x5A));
}

TEST_F(PanelControlsTest, CompassLightsZonesInTheirColours)
{
    struct Case {
        std::uint32_t masks;
        QRgb north;
    } cases[] = {{0x1, qRgb(150, 227, 129)}, {0x10001, qRgb(242, 244, 102)}, {0x0, Grey}};
    for (const Case& c : cases) {
        CompassState compass;
        compass.SetExits(c.masks);
        const QImage image =
            Paint(std::make_unique<CompassHandler>(compass), 62, 43, "IDB_COMPASS");
        EXPECT_EQ(image.pixel(39, 10), c.north) << c.masks;
    }
}

TEST_F(PanelControlsTest, FigureMapsItsMarkersToThePanelGrey)
{
    FigureState figure;
    figure.SetState(FIGURE_SITTING);
    EXPECT_EQ(Paint(std::make_unique<FigureHandler>(figure), 46, 38).pixel(0, 0), Grey);
    figure.SetState(FIGURE_STANDING | FIGURE_BLEEDING);
    EXPECT_EQ(Paint(std::make_unique<FigureHandler>(figure), 46, 38).pixel(0, 0), qRgb(255, 0, 0));
}

TEST_F(PanelControlsTest, IconShowsTheHeldHalf)
{
    IconState icon;
    const QImage away = Paint(std::make_unique<IconHandler>(icon), 14, 14, "IDB_SMALL_SWORD");
    icon.SetState(1);
    const QImage held = Paint(std::make_unique<IconHandler>(icon), 14, 14, "IDB_SMALL_SWORD");
    BitmapImage picture("IDB_SMALL_SWORD", true);
    EXPECT_EQ(held, picture.Image().copy(0, 0, 14, 14));
    EXPECT_EQ(away, picture.Image().copy(14, 0, 14, 14));
}

TEST_F(PanelControlsTest, TextBoxFillsItsColourBehindTheText)
{
    const QImage image = Paint(std::make_unique<TextBoxHandler>("Gold:", LABEL_BOX_COLOR), 34, 11);
    EXPECT_EQ(image.pixel(33, 10), Grey);
    EXPECT_TRUE(image.pixel(33, 10) != image.pixel(2, 4) || image.pixel(3, 5) != Grey);
}

TEST_F(PanelControlsTest, ToolButtonShowsTheHeldFaceWhileDown)
{
    int sent = 0;
    QWidget frame;
    ToolButtons buttons(frame, resources, [&](int command) { sent = command; });
    ToolButton& sword = buttons.Button(0);
    BitmapImage picture("IDB_SWORD", true);
    EXPECT_EQ(Render(sword), picture.Image().copy(0, 0, 26, 26));
    sword.setDown(true);
    EXPECT_EQ(Render(sword), picture.Image().copy(26, 0, 26, 26));
    sword.setDown(false);
    sword.click();
    EXPECT_EQ(sent, 1806);
    EXPECT_EQ(sword.toolTip(), QStringLiteral("Ready your weapon"));
}

// Counts the paints of every control of the panel.
class PaintCounter : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints[watched];
        return false;
    }
    std::map<QObject*, int> paints;
};

TEST_F(PanelControlsTest, ARecordPaintsOnlyWhatChanged)
{
    QWidget frame;
    frame.resize(800, 120);
    StatusPanelView view(frame, panel, [](int) {});
    view.Place(10, {});
    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    QApplication::processEvents();
    PaintCounter counter;
    for (QObject* child : frame.children())
        child->installEventFilter(&counter);
    // The same record twice but for the hit points.
    for (int hp : {40, 40, 35}) {
        for (Gauge* gauge : {&panel.Hp, &panel.Ftg, &panel.Weight, &panel.Psi, &panel.Web}) {
            gauge->SetMin(0);
            gauge->SetMax(100);
            gauge->SetValue(gauge == &panel.Hp ? hp : 60);
        }
        panel.Silver.SetText("12");
        panel.Gold.SetText("3");
        panel.BodyFigure.SetState(FIGURE_STANDING);
        panel.WeaponIcon.SetState(1);
        // The gauge's paint gives the value box its text, which paints on the next turn; each
        // control paints at most once a frame.
        QTest::qWait(4 * DISPLAY_FRAME_MS);
        if (hp == 40)
            counter.paints.clear();
    }
    QWidget* hpGauge = frame.childAt(70, 18);
    QWidget* hpValue = frame.childAt(128, 18);
    EXPECT_EQ(counter.paints, (std::map<QObject*, int>{{hpGauge, 1}, {hpValue, 1}}));
}

} // namespace
} // namespace steward
