#pragma once

#include "highlights/qt/HighlightPage.h"

#include <QDialog>

#include <array>

class QPushButton;
class QTabWidget;

namespace steward {

class AnsiWindow;

// "Highlight Strings": the text colours and the two lists, each on a page of its own. A page
// is made when it is first shown, so a page never opened writes nothing. OK and Apply write
// the pages made so far; Cancel writes nothing more.
class HighlightSheet : public QDialog {
  public:
    static constexpr int PAGE_COUNT = 3;

    HighlightSheet(const HighlightSheetLinks& links, QWidget* owner);
    QTabWidget* Tabs() const { return tabs_; }
    // The page of that tab, or null while it was never shown.
    HighlightPage* Page(int tab) const
    {
        return tab >= 0 && tab < PAGE_COUNT ? pages_[static_cast<std::size_t>(tab)] : nullptr;
    }
    QPushButton* ApplyButton() const { return apply_; }
    void Apply();
    void accept() override;

  private:
    void ShowPage(int tab);

    HighlightSheetLinks links_;
    QTabWidget* tabs_;
    QPushButton* apply_ = nullptr;
    std::array<HighlightPage*, PAGE_COUNT> pages_{};
};

// Frame command 605: the Game window's colours become the defaults of Settings, then the sheet
// runs modally.
void ShowHighlightDialog(QWidget* owner, const HighlightSheetLinks& links, const AnsiWindow* game);

} // namespace steward
