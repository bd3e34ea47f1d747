#include "highlights/qt/HighlightSheet.h"

#include "terminal/AnsiWindow.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace steward {

namespace {

constexpr const char* PAGE_TITLES[HighlightSheet::PAGE_COUNT] = {
    " Default Strings ", " User-Defined Strings ", " User-Defined Names "};
constexpr HighlightPageKind PAGE_KINDS[HighlightSheet::PAGE_COUNT] = {
    HighlightPageKind::DefaultStrings, HighlightPageKind::UserStrings,
    HighlightPageKind::UserNames};

} // namespace

HighlightSheet::HighlightSheet(const HighlightSheetLinks& links, QWidget* owner)
    : QDialog(owner), links_(links), tabs_(new QTabWidget(this))
{
    setWindowTitle(QStringLiteral("Highlight Strings"));
    auto* layout = new QVBoxLayout(this);
    for (const char* title : PAGE_TITLES)
        tabs_->addTab(new QWidget, QString::fromLatin1(title));
    layout->addWidget(tabs_);
    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    apply_ = buttons->button(QDialogButtonBox::Apply);
    apply_->setEnabled(false);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(apply_, &QPushButton::clicked, this, &HighlightSheet::Apply);
    connect(tabs_, &QTabWidget::currentChanged, this, &HighlightSheet::ShowPage);
    ShowPage(0);
}

void HighlightSheet::ShowPage(int tab)
{
    QWidget* holder = tabs_->widget(tab);
    if (!holder)
        return;
    if (HighlightPage* page = Page(tab)) {
        page->ShowSlotsLeft();
        return;
    }
    auto* page = new HighlightPage(PAGE_KINDS[tab], links_, [this] { apply_->setEnabled(true); });
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page);
    pages_[static_cast<std::size_t>(tab)] = page;
}

void HighlightSheet::Apply()
{
    for (HighlightPage* page : pages_)
        if (page)
            page->Apply();
    apply_->setEnabled(false);
}

void HighlightSheet::accept()
{
    Apply();
    QDialog::accept();
}

void ShowHighlightDialog(QWidget* owner, const HighlightSheetLinks& links, const AnsiWindow* game)
{
    if (game) {
        links.Options.DefaultTextColor = game->GetTextColor();
        links.Options.DefaultBackColor = game->GetBkColor();
    }
    HighlightSheet sheet(links, owner);
    sheet.exec();
}

} // namespace steward
