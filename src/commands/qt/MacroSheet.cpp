#include "commands/qt/MacroSheet.h"

#include "commands/MacroKeyTypes.h"
#include "commands/MacroSlots.h"
#include "base/qt/CenterWindow.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace steward {

namespace {

constexpr const char* TAB_TITLES[] = {"  Alt Keys  ", "  Ctrl Keys  ", "  FKeys  ",
                                      "  Numeric Keypad  "};
constexpr const char* KEY_TYPE_TITLES[MACRO_KEY_TYPE_COUNT] = {"S&tandard", "&ALT", "&Shift",
                                                               "&Ctrl"};
constexpr int LETTER_ROWS = 13;

QLineEdit* MacroEdit(QWidget* parent, int limit = MACRO_EDIT_LIMIT)
{
    auto* edit = new QLineEdit(parent);
    edit->setMaxLength(limit);
    return edit;
}

QString Text(const char* bytes)
{
    return QString::fromLatin1(bytes ? bytes : "");
}

QByteArray Bytes(const QLineEdit* edit)
{
    return edit->text().toLatin1();
}

} // namespace

LetterPage::LetterPage(MacroStore& store, KeyModifiers modifier)
    : store_(store), modifier_(modifier)
{
    auto* grid = new QGridLayout(this);
    for (int letter = 0; letter < MACRO_LETTER_COUNT; ++letter) {
        const int column = (letter / LETTER_ROWS) * 2;
        grid->addWidget(new QLabel(QString(QChar('A' + letter)), this), letter % LETTER_ROWS,
                        column);
        edits_[letter] = MacroEdit(this);
        edits_[letter]->setText(Text(store_.LookupMacro(modifier_, 'A' + letter)));
        grid->addWidget(edits_[letter], letter % LETTER_ROWS, column + 1);
    }
}

void LetterPage::Apply()
{
    for (int letter = 0; letter < MACRO_LETTER_COUNT; ++letter)
        StoreMacroEdit(store_, modifier_, 'A' + letter, Bytes(edits_[letter]).constData());
}

KeyTypePage::KeyTypePage(MacroStore& store, int rows)
    : store_(store), types_(new QButtonGroup(this)), rowsBox_(new QWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    auto* radios = new QHBoxLayout;
    for (int type = 0; type < MACRO_KEY_TYPE_COUNT; ++type) {
        auto* radio = new QRadioButton(QString::fromLatin1(KEY_TYPE_TITLES[type]), this);
        types_->addButton(radio, type);
        radios->addWidget(radio);
    }
    layout->addLayout(radios);
    auto* grid = new QGridLayout(rowsBox_);
    for (int row = 0; row < rows; ++row) {
        labels_[row] = new QLabel(rowsBox_);
        edits_[row] = MacroEdit(rowsBox_);
        grid->addWidget(labels_[row], row, 0);
        grid->addWidget(edits_[row], row, 1);
    }
    layout->addWidget(rowsBox_);
    connect(types_, &QButtonGroup::idClicked, this, &KeyTypePage::ChooseKeyType);
}

void KeyTypePage::ChooseKeyType(int keyType)
{
    SaveKeys();
    ShowKeys(keyType);
}

FunctionKeyPage::FunctionKeyPage(MacroStore& store)
    : KeyTypePage(store, FUNCTION_KEY_COUNT), name_(MacroEdit(this, MACRO_SET_NAME_EDIT_LIMIT)),
      sets_(new QComboBox(this))
{
    auto* setRow = new QHBoxLayout;
    auto* nameLabel = new QLabel(QStringLiteral("&Name of this set is:"), this);
    nameLabel->setBuddy(name_);
    auto* previous = new QPushButton(QStringLiteral("<"), this);
    auto* next = new QPushButton(QStringLiteral(">"), this);
    for (QPushButton* button : {previous, next})
        button->setAutoDefault(false);
    setRow->addWidget(nameLabel);
    setRow->addWidget(name_);
    setRow->addWidget(previous);
    setRow->addWidget(sets_);
    setRow->addWidget(next);
    static_cast<QVBoxLayout*>(layout())->addLayout(setRow);
    for (int set = 1; set <= MACRO_SET_COUNT; ++set)
        sets_->addItem(QStringLiteral("Macro Set %1").arg(set));
    ShowKeys(KEY_TYPE_STANDARD);
    sets_->setCurrentIndex(store_.CurrentMacroSet());
    connect(sets_, &QComboBox::activated, this, &FunctionKeyPage::ChooseSet);
    connect(previous, &QPushButton::clicked, this, [this] { StepSet(false); });
    connect(next, &QPushButton::clicked, this, [this] { StepSet(true); });
}

void FunctionKeyPage::ShowKeys(int keyType)
{
    types_->button(keyType)->setChecked(true);
    const KeyModifiers modifiers = KeyTypeModifiers(keyType);
    for (int key = 0; key < FUNCTION_KEY_COUNT; ++key) {
        labels_[key]->setText(QStringLiteral("%1F%2").arg(KeyTypePrefix(keyType)).arg(key + 1));
        edits_[key]->setText(Text(store_.LookupMacro(modifiers, VK_F1 + key)));
        const bool hidden = keyType == KEY_TYPE_ALT && key == ALT_HIDDEN_FUNCTION_KEY;
        labels_[key]->setHidden(hidden);
        edits_[key]->setHidden(hidden);
    }
    name_->setText(Text(store_.MacroSetName(store_.CurrentMacroSet())));
    keyType_ = keyType;
}

void FunctionKeyPage::SaveKeys()
{
    StoreMacroSetName(store_, Bytes(name_).constData());
    const KeyModifiers modifiers = KeyTypeModifiers(keyType_);
    for (int key = 0; key < FUNCTION_KEY_COUNT; ++key)
        StoreMacroEdit(store_, modifiers, VK_F1 + key, Bytes(edits_[key]).constData());
}

void FunctionKeyPage::ChooseSet(int index)
{
    SaveKeys();
    store_.SelectMacroSet(index);
    ShowKeys(keyType_);
}

void FunctionKeyPage::StepSet(bool forward)
{
    SaveKeys();
    if (forward)
        store_.NextMacroSet();
    else
        store_.PreviousMacroSet();
    ShowKeys(keyType_);
    sets_->setCurrentIndex(store_.CurrentMacroSet());
}

KeypadPage::KeypadPage(MacroStore& store) : KeyTypePage(store, KEYPAD_KEY_COUNT)
{
    ShowKeys(KEY_TYPE_STANDARD);
}

void KeypadPage::ShowKeys(int keyType)
{
    types_->button(keyType)->setChecked(true);
    const KeyModifiers modifiers = KeyTypeModifiers(keyType);
    for (int key = 0; key < KEYPAD_KEY_COUNT; ++key) {
        labels_[key]->setText(
            QStringLiteral("%1%2").arg(KeyTypePrefix(keyType)).arg(KEYPAD_FILE_CHARACTERS[key]));
        edits_[key]->setText(Text(store_.LookupMacro(modifiers, KEYPAD_KEYS[key])));
    }
    keyType_ = keyType;
}

void KeypadPage::SaveKeys()
{
    const KeyModifiers modifiers = KeyTypeModifiers(keyType_);
    for (int key = 0; key < KEYPAD_KEY_COUNT; ++key)
        StoreMacroEdit(store_, modifiers, KEYPAD_KEYS[key], Bytes(edits_[key]).constData());
}

MacroSheet::MacroSheet(MacroStore& store, QWidget* owner)
    : TabbedSheet(owner, QStringLiteral("Macro Key Definitions"), TAB_TITLES,
                  [&store](int tab) -> MacroPage* {
                      if (tab == 0)
                          return new LetterPage(store, KEY_ALT);
                      if (tab == 1)
                          return new LetterPage(store, KEY_CTRL);
                      if (tab == 2)
                          return new FunctionKeyPage(store);
                      return new KeypadPage(store);
                  })
{
}

void ShowMacroSheet(QWidget* owner, MacroStore& store)
{
    MacroSheet sheet(store, owner);
    CenterWindow(sheet);
    sheet.exec();
}

} // namespace steward
