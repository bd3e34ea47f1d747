#pragma once

#include "base/qt/TabbedSheet.h"
#include "commands/MacroStore.h"

#include <array>

class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;

namespace steward {

// One page of the macro sheet: it shows the store when it is made and writes its edits back
// on OK.
using MacroPage = SheetPage;

// The Alt or Ctrl letters, A to Z.
class LetterPage : public MacroPage {
  public:
    LetterPage(MacroStore& store, KeyModifiers modifier);
    void Apply() override;
    QLineEdit* Edit(int letter) const { return edits_[letter]; }

  private:
    MacroStore& store_;
    KeyModifiers modifier_;
    std::array<QLineEdit*, MACRO_LETTER_COUNT> edits_{};
};

// Rows of keys of one key type, chosen by four radio buttons; every change of key type first
// stores what the rows hold.
class KeyTypePage : public MacroPage {
  public:
    QLineEdit* Edit(int row) const { return edits_[row]; }
    QLabel* Label(int row) const { return labels_[row]; }
    // Stores the rows, then shows those of the key type.
    void ChooseKeyType(int keyType);

  protected:
    KeyTypePage(MacroStore& store, int rows);
    virtual void ShowKeys(int keyType) = 0;
    virtual void SaveKeys() = 0;
    void Apply() override { SaveKeys(); }
    QWidget* Rows() const { return rowsBox_; }

    MacroStore& store_;
    int keyType_ = 0;
    std::array<QLineEdit*, FUNCTION_KEY_COUNT + KEYPAD_KEY_COUNT> edits_{};
    std::array<QLabel*, FUNCTION_KEY_COUNT + KEYPAD_KEY_COUNT> labels_{};
    QButtonGroup* types_;
    QWidget* rowsBox_;
};

// F1 to F12 of the current set, with the set's name and the choice of set.
class FunctionKeyPage : public KeyTypePage {
  public:
    explicit FunctionKeyPage(MacroStore& store);
    QLineEdit* NameEdit() const { return name_; }
    QComboBox* SetList() const { return sets_; }
    // The "<" and ">" buttons.
    void StepSet(bool forward);

  private:
    void ShowKeys(int keyType) override;
    void SaveKeys() override;
    void ChooseSet(int index);

    QLineEdit* name_;
    QComboBox* sets_;
};

// The fifteen keypad keys.
class KeypadPage : public KeyTypePage {
  public:
    explicit KeypadPage(MacroStore& store);

  private:
    void ShowKeys(int keyType) override;
    void SaveKeys() override;
};

// "Macro Key Definitions": four pages, OK and Cancel.
class MacroSheet : public TabbedSheet {
    Q_OBJECT
  public:
    MacroSheet(MacroStore& store, QWidget* owner);
};

// Runs the sheet modally.
void ShowMacroSheet(QWidget* owner, MacroStore& store);

} // namespace steward
