#include "ClientHarness.h"
#include "panels/qt/MultiControlWidget.h"

#include <QImage>

namespace steward::test {
namespace {

class PanelWorldTest : public ClientHarness {
  protected:
    // The panel's control at a point of the frame, with graphics at the top.
    static MultiControl* ControlAt(Client& client, int x, int y)
    {
        return qobject_cast<MultiControl*>(client.Frame().Surface().childAt(x, y));
    }

    static std::string BoxText(MultiControl* box)
    {
        auto* handler = box ? dynamic_cast<TextBoxHandler*>(&box->Handler()) : nullptr;
        return handler ? handler->Text().Text() : "";
    }

    // Pixels of the gauge's text colour: the stacked seconds of a countdown.
    static int TextPixels(MultiControl* gauge)
    {
        QImage image(gauge->size(), QImage::Format_RGB32);
        gauge->render(&image);
        int count = 0;
        for (int y = 1; y < image.height() - 1; ++y)
            for (int x = 1; x < image.width() - 1; ++x)
                count += image.pixel(x, y) == qRgb(255, 255, 255);
        return count;
    }
};

TEST_F(PanelWorldTest, HitPointsBoxAndRoundTimeFollowAFight)
{
    auto client = LoggedInClient();
    ASSERT_TRUE(client);
    // The "Hp:" gauge stands at (64, 4), 60 wide; its value box 4 pixels to the right.
    MultiControl* hpValue = ControlAt(*client, 130, 8);
    MultiControl* rtGauge = ControlAt(*client, 655, 30);
    ASSERT_TRUE(hpValue && rtGauge);
    ASSERT_TRUE(QTest::qWaitFor([&] { return BoxText(hpValue) == "100/100"; }, WAIT_MS))
        << BoxText(hpValue);
    for (const char* step : {"west", "down", "attack"}) {
        Type(*client, step);
        ASSERT_TRUE(WaitForSent(QByteArray(step) + "\n\r")) << step;
    }
    Gauge& rt = client->State().Panel.RT;
    rt.SetColors({0xFFFFFF, 0x5A5AFA, 0x5F5F5F});
    ASSERT_TRUE(QTest::qWaitFor([&] { return rt.IsCounting(); }, WAIT_MS)) << GameText(*client);
    EXPECT_GT(TextPixels(rtGauge), 0);
    // The rat bites back, so the box shows fewer hit points.
    EXPECT_TRUE(QTest::qWaitFor([&] { return BoxText(hpValue) != "100/100"; }, WAIT_MS));
    EXPECT_EQ(BoxText(hpValue).substr(BoxText(hpValue).find('/')), "/100");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !rt.IsCounting(); }, WAIT_MS));
    EXPECT_EQ(rt.GetValue(), 0);
    EXPECT_EQ(TextPixels(rtGauge), 0);
}

} // namespace
} // namespace steward::test
