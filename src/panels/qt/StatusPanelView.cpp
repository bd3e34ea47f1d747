#include "panels/qt/StatusPanelView.h"

#include "panels/qt/MultiControlWidget.h"

namespace steward {

namespace {

constexpr int GAUGE_WIDTH = 60;
constexpr int GAUGE_HEIGHT = 16;
constexpr int TIME_GAUGE_WIDTH = 16;
constexpr int TIME_GAUGE_HEIGHT = 36;
constexpr int COMPASS_WIDTH = 62;
constexpr int COMPASS_HEIGHT = 43;
constexpr int FIGURE_WIDTH = 46;
constexpr int FIGURE_HEIGHT = 38;
constexpr int ICON_SIZE = 14;
constexpr int MONEY_BOX_WIDTH = 60;
// The value box is as wide as the widest number the alphabet writes.
constexpr char VALUE_BOX_SAMPLE[] = "44444444";
// Boxes stand this far from their gauge, one pixel lower.
constexpr int BOX_GAP = 4;

} // namespace

StatusPanelView::StatusPanelView(QWidget& frame, StatusPanel& panel,
                                 std::function<void(int)> command)
    : frame_(frame), panel_(panel), buttons_(frame, resources_, std::move(command))
{
    AddGauge(panel.Hp, 64, 4, GAUGE_WIDTH, GAUGE_HEIGHT);
    AddGauge(panel.Ftg, 64, 24, GAUGE_WIDTH, GAUGE_HEIGHT);
    AddGauge(panel.Weight, 64, 44, GAUGE_WIDTH, GAUGE_HEIGHT);
    AddGauge(panel.Psi, 230, 4, GAUGE_WIDTH, GAUGE_HEIGHT);
    AddGauge(panel.Web, 230, 24, GAUGE_WIDTH, GAUGE_HEIGHT);
    panel.Compass.SetView(Add(std::make_unique<CompassHandler>(panel.Compass), 380, 10,
                              COMPASS_WIDTH, COMPASS_HEIGHT, "IDB_COMPASS"));
    panel.BodyFigure.SetView(Add(std::make_unique<FigureHandler>(panel.BodyFigure), 460, 17,
                                 FIGURE_WIDTH, FIGURE_HEIGHT));
    panel.WeaponIcon.SetView(Add(std::make_unique<IconHandler>(panel.WeaponIcon), 466, 3, ICON_SIZE,
                                 ICON_SIZE, "IDB_SMALL_SWORD"));
    panel.ShieldIcon.SetView(Add(std::make_unique<IconHandler>(panel.ShieldIcon), 486, 3, ICON_SIZE,
                                 ICON_SIZE, "IDB_SMALL_SHIELD"));
    AddLabel("Gold:", 546, 5, 34);
    AddBox(panel.Gold, 580, 5, MONEY_BOX_WIDTH);
    AddLabel("Silver:", 540, 22, 40);
    AddBox(panel.Silver, 580, 22, MONEY_BOX_WIDTH);
    AddLabel("RT:", 650, 4, 20);
    AddGauge(panel.RT, 650, 15, TIME_GAUGE_WIDTH, TIME_GAUGE_HEIGHT);
    AddLabel("Pause:", 675, 4, 40);
    AddGauge(panel.Pause, 684, 15, TIME_GAUGE_WIDTH, TIME_GAUGE_HEIGHT);
}

StatusPanelView::~StatusPanelView()
{
    for (Gauge* gauge : {&panel_.Hp, &panel_.Ftg, &panel_.Weight, &panel_.Psi, &panel_.Web,
                         &panel_.RT, &panel_.Pause})
        gauge->SetView(nullptr);
    for (PanelText* text : {&panel_.Silver, &panel_.Gold})
        text->SetView(nullptr);
    panel_.Compass.SetView(nullptr);
    panel_.BodyFigure.SetView(nullptr);
    panel_.WeaponIcon.SetView(nullptr);
    panel_.ShieldIcon.SetView(nullptr);
}

MultiControl* StatusPanelView::Add(std::unique_ptr<ControlHandler> handler, int x, int y, int width,
                                   int height, const char* picture)
{
    auto* control = new MultiControl(&frame_, std::move(handler), resources_, picture);
    control->resize(width, height);
    control->show();
    placed_.push_back({control, x, y});
    return control;
}

void StatusPanelView::AddGauge(Gauge& gauge, int x, int y, int width, int height)
{
    PanelText* valueBox = nullptr;
    if (gauge.GetFlags() & GF_BOXES) {
        const BitmapFontGrid& font = resources_.Font().Grid();
        const int labelWidth = font.TextWidth(gauge.Label());
        AddLabel(gauge.Label(), x - labelWidth - BOX_GAP, y + 1, labelWidth,
                 gauge.Colors().GaugeBackColor);
        if (!(gauge.GetFlags() & GF_NOVALUEBOX)) {
            auto box = std::make_unique<TextBoxHandler>("", gauge.Colors().GaugeBackColor);
            valueBox = &box->Text();
            valueBox->SetView(Add(std::move(box), x + width + BOX_GAP, y + 1,
                                  font.TextWidth(VALUE_BOX_SAMPLE), font.CellHeight()));
        }
    }
    gauge.SetView(Add(std::make_unique<GaugeHandler>(gauge, resources_.Font().Grid(), valueBox), x,
                      y, width, height));
}

void StatusPanelView::AddBox(PanelText& text, int x, int y, int width)
{
    text.SetView(Add(std::make_unique<TextBoxHandler>(text, LABEL_BOX_COLOR), x, y, width,
                     resources_.Font().Grid().CellHeight()));
}

void StatusPanelView::AddLabel(const char* text, int x, int y, int width, std::uint32_t color)
{
    Add(std::make_unique<TextBoxHandler>(text, color), x, y, width,
        resources_.Font().Grid().CellHeight());
}

void StatusPanelView::Place(int panelTop, const ToolButtonPlaces& buttons)
{
    for (const Placed& p : placed_)
        p.Control->move(p.X, panelTop + p.Y);
    buttons_.Place(buttons);
}

} // namespace steward
