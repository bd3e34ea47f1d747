#include "panels/qt/ToolButtons.h"

#include "base/FrameCommand.h"
#include "panels/MultiControl.h"
#include "panels/qt/QtPanelCanvas.h"

#include <QPainter>

namespace steward {

namespace {

struct ToolButtonRow {
    int Command;
    const char* Bitmap;
    const char* Tooltip;
};

constexpr ToolButtonRow TOOL_BUTTON_ROWS[TOOL_BUTTON_COUNT] = {
    {CMD_EQUIP_WEAPON, "IDB_SWORD", "Ready your weapon"},
    {CMD_EQUIP_SHIELD, "IDB_SHIELD", "Ready your shield"},
    {CMD_UNEQUIP_WEAPON, "IDB_NOSWORD", "Unready your weapon"},
    {CMD_UNEQUIP_SHIELD, "IDB_NOSHIELD", "Unready your shield"}};

// Where the buttons stand before the first layout: from x 800, with a gap between the two pairs.
constexpr int FIRST_BUTTON_X = 800;
constexpr int PAIR_GAP = 6;

} // namespace

ToolButton::ToolButton(QWidget* parent, const char* bitmapName, PanelResources& resources)
    : QAbstractButton(parent), picture_(bitmapName, true), resources_(resources)
{
    resize(picture_.Width() / 2, picture_.Height());
}

void ToolButton::paintEvent(QPaintEvent*)
{
    if (picture_.Empty())
        return;
    QPainter painter(this);
    QtPanelCanvas canvas(painter, resources_, &picture_, scratch_);
    PaintToolButton(canvas, picture_.Width() / 2, picture_.Height(), isDown());
}

ToolButtons::ToolButtons(QWidget& parent, PanelResources& resources,
                         std::function<void(int)> command)
{
    int x = FIRST_BUTTON_X;
    for (int i = 0; i < TOOL_BUTTON_COUNT; ++i) {
        const ToolButtonRow& row = TOOL_BUTTON_ROWS[i];
        auto* button = new ToolButton(&parent, row.Bitmap, resources);
        button->setToolTip(QString::fromLatin1(row.Tooltip));
        button->setFocusPolicy(Qt::NoFocus);
        button->move(x, 1);
        QObject::connect(button, &QAbstractButton::clicked, button,
                         [command, c = row.Command] { command(c); });
        buttons_[i] = button;
        x += button->width() + (i == 1 ? PAIR_GAP : 0);
    }
}

void ToolButtons::Place(const ToolButtonPlaces& places)
{
    for (int i = 0; i < TOOL_BUTTON_COUNT; ++i)
        buttons_[i]->move(places[i].X, places[i].Y);
}

} // namespace steward
