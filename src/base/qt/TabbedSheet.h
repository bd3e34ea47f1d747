#pragma once

#include <QDialog>

#include <functional>
#include <span>
#include <vector>

class QTabWidget;

namespace steward {

// One page of a sheet: it shows its fields when it is made and writes them back on OK.
class SheetPage : public QWidget {
  public:
    virtual void Apply() = 0;
};

// A dialog of tabbed pages with OK and Cancel. A page is made when its tab is first shown, so
// a page never opened takes no part in OK; Cancel applies nothing.
class TabbedSheet : public QDialog {
    Q_OBJECT
  public:
    // Makes the page of a tab, once, when the tab is first shown.
    using PageMaker = std::function<SheetPage*(int tab)>;

    TabbedSheet(QWidget* owner, const QString& title, std::span<const char* const> tabTitles,
                PageMaker makePage);
    QTabWidget* Tabs() const { return tabs_; }
    // The page of that tab, or null while it was never shown.
    SheetPage* Page(int tab) const;
    void accept() override;

  private:
    void MakePage(int tab);

    PageMaker makePage_;
    QTabWidget* tabs_;
    std::vector<SheetPage*> pages_;
};

} // namespace steward
