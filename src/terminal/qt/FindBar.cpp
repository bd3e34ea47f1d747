#include "terminal/qt/FindBar.h"

#include "base/qt/OwnKeys.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace steward {

FindBar::FindBar(Handlers handlers, QWidget* parent)
    : QWidget(parent), handlers_(std::move(handlers)), field_(new QLineEdit(this)),
      matchCase_(new QCheckBox(QStringLiteral("Match case"), this)), result_(new QLabel(this))
{
    setAutoFillBackground(true);
    field_->setProperty(OWN_KEYS_PROPERTY, true);
    field_->setAccessibleName(QStringLiteral("Find"));
    field_->installEventFilter(this);
    auto* previous = new QPushButton(QStringLiteral("Previous"), this);
    auto* next = new QPushButton(QStringLiteral("Next"), this);
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("x"));
    close->setToolTip(QStringLiteral("Close (Escape)"));
    for (QWidget* control : {static_cast<QWidget*>(previous), static_cast<QWidget*>(next),
                             static_cast<QWidget*>(matchCase_), static_cast<QWidget*>(close)})
        control->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(new QLabel(QStringLiteral("Find:"), this));
    layout->addWidget(field_, 1);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(matchCase_);
    layout->addWidget(result_);
    layout->addWidget(close);
    connect(previous, &QPushButton::clicked, this, [this] { Find(SearchDirection::Older); });
    connect(next, &QPushButton::clicked, this, [this] { Find(SearchDirection::Newer); });
    connect(close, &QToolButton::clicked, this, &FindBar::Close);
    connect(field_, &QLineEdit::textEdited, result_, &QLabel::clear);
    hide();
}

void FindBar::Open()
{
    show();
    raise();
    field_->setFocus();
    field_->selectAll();
}

void FindBar::Close()
{
    hide();
    result_->clear();
    handlers_.Closed();
}

QString FindBar::Result() const
{
    return result_->text();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != field_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Escape:
        Close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Find(key->modifiers() & Qt::ShiftModifier ? SearchDirection::Newer
                                                  : SearchDirection::Older);
        return true;
    default:
        return false;
    }
}

// The field holds Latin-1 text, as the window's bytes are.
void FindBar::Find(SearchDirection direction)
{
    const QByteArray needle = field_->text().toLatin1();
    if (needle.isEmpty())
        return;
    const bool found = handlers_.Find(needle.toStdString(), direction, matchCase_->isChecked());
    result_->setText(found ? QString() : QStringLiteral("Not found"));
}

} // namespace steward
