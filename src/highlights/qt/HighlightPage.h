#pragma once

#include "highlights/HighlightItems.h"
#include "highlights/HighlightSound.h"
#include "highlights/HighlightStore.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QListView;
class QPushButton;

namespace steward {

class ColorGrid;
class HighlightDialogs;
class MessageBoxes;
class HighlightItemModel;

// What the highlight sheet edits and whom it asks.
struct HighlightSheetLinks {
    Settings& Options;
    HighlightStore& Lists;
    SoundFolder& Sounds;
    HighlightDialogs& Dialogs;
    MessageBoxes& Messages;
};

enum class HighlightPageKind { DefaultStrings, UserStrings, UserNames };

enum class PageButton { New, Change, Delete, Sort, Play, Browse, Transparent };
constexpr int PAGE_BUTTON_COUNT = 7;

// One page of the highlight sheet: a list of coloured lines over the colour cells. It works on
// its own copy of the items; only Apply writes the store.
class HighlightPage : public QWidget {
  public:
    HighlightPage(HighlightPageKind kind, const HighlightSheetLinks& links,
                  std::function<void()> changed);

    // Writes the items to the page's list, or their colours to Settings.
    void Apply();
    // Each time the page becomes the active one.
    void ShowSlotsLeft();

    const HighlightItems& Items() const { return items_; }
    QListView* List() const { return list_; }
    QPushButton* Button(PageButton button) const;
    QCheckBox* Box(HighlightFlag flag) const;
    QComboBox* SoundList() const { return sounds_; }
    QLabel* SlotsLeft() const { return slotsLeft_; }
    ColorGrid* Grid() const { return grid_; }

  private:
    void MakeControls();
    QWidget* MakeButtons();
    QWidget* MakeOptions();
    void FillSounds();
    void ConnectControls();

    // The list shows the items again and the controls follow the selection.
    void Refresh();
    void SelectionChanged();
    // A change the items refused leaves the page as it was and says why.
    void Refused();

    void New();
    void Change();
    void ChooseSound(int entry);
    void Play();
    void Browse();
    void ClickCell(int cell, bool left);

    HighlightPageKind kind_;
    HighlightSheetLinks links_;
    std::function<void()> changed_;
    HighlightItems items_;
    HighlightItemModel* model_ = nullptr;
    QListView* list_ = nullptr;
    QPushButton* buttons_[PAGE_BUTTON_COUNT] = {};
    QCheckBox* boxes_[HIGHLIGHT_FLAG_COUNT] = {};
    QComboBox* sounds_ = nullptr;
    QLabel* slotsLeft_ = nullptr;
    ColorGrid* grid_ = nullptr;
};

} // namespace steward
