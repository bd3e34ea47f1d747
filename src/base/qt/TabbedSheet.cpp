#include "base/qt/TabbedSheet.h"

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace steward {

TabbedSheet::TabbedSheet(QWidget* owner, const QString& title,
                         std::span<const char* const> tabTitles, PageMaker makePage)
    : QDialog(owner), makePage_(std::move(makePage)), tabs_(new QTabWidget(this)),
      pages_(tabTitles.size(), nullptr)
{
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    for (const char* tabTitle : tabTitles)
        tabs_->addTab(new QWidget, QString::fromLatin1(tabTitle));
    layout->addWidget(tabs_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(tabs_, &QTabWidget::currentChanged, this, &TabbedSheet::MakePage);
    MakePage(0);
}

SheetPage* TabbedSheet::Page(int tab) const
{
    return tab >= 0 && tab < static_cast<int>(pages_.size()) ? pages_[tab] : nullptr;
}

void TabbedSheet::MakePage(int tab)
{
    QWidget* holder = tabs_->widget(tab);
    if (!holder || Page(tab))
        return;
    SheetPage* page = makePage_(tab);
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    page->setParent(holder);
    layout->addWidget(page);
    pages_[tab] = page;
}

void TabbedSheet::accept()
{
    for (SheetPage* page : pages_)
        if (page)
            page->Apply();
    QDialog::accept();
}

} // namespace steward
