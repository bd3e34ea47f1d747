#include "panels/qt/ControlAccessible.h"

#include "panels/Gauge.h"
#include "panels/qt/MultiControlWidget.h"

namespace steward {

namespace {

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String(MultiControl::staticMetaObject.className()))
        return nullptr;
    auto* control = qobject_cast<MultiControl*>(object);
    return control ? new ControlAccessible(control) : nullptr;
}

} // namespace

ControlAccessible::ControlAccessible(MultiControl* control) : QAccessibleWidget(control) {}

MultiControl& ControlAccessible::Control() const
{
    return *static_cast<MultiControl*>(widget());
}

Gauge* ControlAccessible::ShownGauge() const
{
    return Control().Handler().MenuGauge();
}

void* ControlAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface && ShownGauge())
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::Role ControlAccessible::role() const
{
    if (ShownGauge())
        return QAccessible::ProgressBar;
    return *Control().Handler().AccessibleName() ? QAccessible::StaticText : QAccessible::Graphic;
}

QString ControlAccessible::text(QAccessible::Text kind) const
{
    const ControlHandler& handler = Control().Handler();
    if (kind == QAccessible::Name)
        return QString::fromLatin1(handler.AccessibleName());
    if (kind == QAccessible::Value) {
        char value[ACCESSIBLE_VALUE_SIZE];
        handler.AccessibleValue(value, sizeof value);
        return QString::fromLatin1(value);
    }
    return QAccessibleWidget::text(kind);
}

QVariant ControlAccessible::currentValue() const
{
    const Gauge* gauge = ShownGauge();
    return gauge ? QVariant(gauge->GetValue()) : QVariant();
}

QVariant ControlAccessible::maximumValue() const
{
    const Gauge* gauge = ShownGauge();
    return gauge ? QVariant(gauge->GetMax()) : QVariant();
}

QVariant ControlAccessible::minimumValue() const
{
    const Gauge* gauge = ShownGauge();
    return gauge ? QVariant(gauge->GetMin()) : QVariant();
}

void InstallControlAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    (void)installed;
}

} // namespace steward
