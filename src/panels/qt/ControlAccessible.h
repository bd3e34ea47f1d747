#pragma once

#include <QAccessibleWidget>

namespace steward {

class Gauge;
class MultiControl;

// A panel control as a screen reader sees it: a gauge is a progress bar with its label, value
// and range; the compass and the text boxes are text with their name and value. The game sets
// the values, so a screen reader cannot.
class ControlAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit ControlAccessible(MultiControl* control);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;

    // QAccessibleValueInterface, for a gauge.
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

  private:
    MultiControl& Control() const;
    // The gauge the control shows; null for other kinds.
    Gauge* ShownGauge() const;
};

// Makes every panel control answer with a ControlAccessible; once per process.
void InstallControlAccessibility();

} // namespace steward
