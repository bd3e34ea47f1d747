#include "highlights/qt/HighlightPage.h"

#include "base/ByteText.h"
#include "base/qt/MessageBoxes.h"
#include "highlights/SoundFiles.h"
#include "highlights/qt/ColorGrid.h"
#include "highlights/qt/HighlightDialogs.h"
#include "highlights/qt/HighlightItemView.h"
#include "panels/qt/BitmapImage.h"
#include "panels/qt/PanelResources.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace steward {

namespace {

constexpr const char* SHEET_TITLE = "Highlight Strings";
constexpr const char* ASK_TITLE = "Highlight String";
constexpr const char* NO_SOUND = " No Sound";

constexpr const char* BUTTON_TEXTS[] = {"&New",
                                        "&Change",
                                        "&Delete",
                                        "&Sort by Color",
                                        "Play",
                                        "&Browse...",
                                        "Set All Backgrounds &Transparent"};
constexpr const char* BOX_TEXTS[] = {"Highlight &Entire Line", "Not on &Word Boundary",
                                     "&Case Sensitive"};

QString Latin(const std::string& text)
{
    return QString::fromLatin1(text.c_str());
}

} // namespace

HighlightPage::HighlightPage(HighlightPageKind kind, const HighlightSheetLinks& links,
                             std::function<void()> changed)
    : kind_(kind), links_(links), changed_(std::move(changed))
{
    if (kind_ == HighlightPageKind::DefaultStrings)
        items_.OpenSamples(links_.Options);
    else
        items_.OpenList(kind_ == HighlightPageKind::UserStrings ? links_.Lists.StringHighlights
                                                                : links_.Lists.NameHighlights);
    MakeControls();
    ConnectControls();
    FillSounds();
    Refresh();
    ShowSlotsLeft();
}

QPushButton* HighlightPage::Button(PageButton button) const
{
    return buttons_[static_cast<int>(button)];
}

QCheckBox* HighlightPage::Box(HighlightFlag flag) const
{
    return boxes_[static_cast<int>(flag)];
}

void HighlightPage::MakeControls()
{
    ItemLook look;
    look.Back = ColorOf(links_.Options.DefaultBackColor);
    look.Text = ColorOf(links_.Options.DefaultTextColor);
    look.Chooser = MaskedIcon("IDB_CHOOSER", "IDM_CHOOSER");
    look.Sound = MaskedIcon("IDB_SOUND", "IDM_SOUND");
    look.Font = PanelBoxFont();
    look.SoundColumn = kind_ == HighlightPageKind::UserStrings;
    look.Samples = kind_ == HighlightPageKind::DefaultStrings;

    list_ = new QListView(this);
    model_ = new HighlightItemModel(items_, this);
    list_->setModel(model_);
    list_->setItemDelegate(new HighlightItemDelegate(look, list_));
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setUniformItemSizes(true);
    QPalette colors = list_->palette();
    colors.setColor(QPalette::Base, look.Back);
    list_->setPalette(colors);

    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    top->addWidget(list_, 1);
    top->addWidget(MakeButtons());
    layout->addLayout(top, 1);
    layout->addWidget(MakeOptions());
    grid_ = new ColorGrid(
        look.Back, look.Text, [this](int cell, bool left) { ClickCell(cell, left); }, this);
    layout->addWidget(grid_);
    layout->addWidget(
        new QLabel(QStringLiteral("Left-click on a color to change the foreground."), this));
    layout->addWidget(
        new QLabel(QStringLiteral("Right-click on a color to change the background."), this));
    QWidget* const order[] = {list_,
                              Button(PageButton::New),
                              Button(PageButton::Change),
                              Button(PageButton::Delete),
                              Button(PageButton::Sort),
                              sounds_,
                              Button(PageButton::Play),
                              Button(PageButton::Browse),
                              boxes_[0],
                              boxes_[1],
                              boxes_[2],
                              Button(PageButton::Transparent)};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QWidget* HighlightPage::MakeButtons()
{
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    for (int i = 0; i < static_cast<int>(std::size(buttons_)); ++i) {
        buttons_[i] = new QPushButton(QString::fromLatin1(BUTTON_TEXTS[i]), box);
        // Enter belongs to the sheet's OK button.
        buttons_[i]->setAutoDefault(false);
    }
    for (PageButton b : {PageButton::New, PageButton::Change, PageButton::Delete, PageButton::Sort})
        column->addWidget(Button(b));
    column->addStretch();
    column->addWidget(new QLabel(QStringLiteral("Slots left:"), box));
    slotsLeft_ = new QLabel(box);
    column->addWidget(slotsLeft_);
    return box;
}

QWidget* HighlightPage::MakeOptions()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    sounds_ = new QComboBox(box);
    grid->addWidget(sounds_, 0, 0);
    grid->addWidget(Button(PageButton::Play), 0, 1);
    grid->addWidget(Button(PageButton::Browse), 0, 2);
    for (int i = 0; i < static_cast<int>(std::size(boxes_)); ++i) {
        boxes_[i] = new QCheckBox(QString::fromLatin1(BOX_TEXTS[i]), box);
        grid->addWidget(boxes_[i], 1 + i, 0, 1, 3);
    }
    grid->addWidget(Button(PageButton::Transparent), 4, 0, 1, 3);
    return box;
}

void HighlightPage::FillSounds()
{
    QStringList choices;
    if (kind_ == HighlightPageKind::UserStrings) {
        const QDir folder(QFile::decodeName(links_.Sounds.SoundPath().c_str()));
        for (const QString& file : folder.entryList({QStringLiteral("*.wav")}, QDir::Files))
            choices << Latin(SoundChoiceOfFile(file.toLatin1().toStdString()));
    }
    choices << QString::fromLatin1(NO_SOUND);
    choices.removeDuplicates();
    // The leading blank keeps " No Sound" first.
    choices.sort();
    sounds_->clear();
    sounds_->addItems(choices);
}

void HighlightPage::ConnectControls()
{
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                items_.Select(current.isValid() ? current.row() : HighlightItems::NO_SELECTION);
                SelectionChanged();
            });
    connect(list_, &QListView::doubleClicked, this, [this] { Change(); });
    const std::pair<PageButton, void (HighlightPage::*)()> actions[] = {
        {PageButton::New, &HighlightPage::New},
        {PageButton::Change, &HighlightPage::Change},
        {PageButton::Play, &HighlightPage::Play},
        {PageButton::Browse, &HighlightPage::Browse}};
    for (const auto& [button, action] : actions)
        connect(Button(button), &QPushButton::clicked, this, action);
    const std::pair<PageButton, void (HighlightItems::*)()> edits[] = {
        {PageButton::Delete, &HighlightItems::Delete},
        {PageButton::Sort, &HighlightItems::SortItems},
        {PageButton::Transparent, &HighlightItems::SetAllBackgroundsTransparent}};
    for (const auto& [button, edit] : edits)
        connect(Button(button), &QPushButton::clicked, this, [this, edit = edit] {
            (items_.*edit)();
            changed_();
            Refresh();
            ShowSlotsLeft();
        });
    for (int i = 0; i < static_cast<int>(std::size(boxes_)); ++i)
        connect(boxes_[i], &QCheckBox::clicked, this, [this, i](bool on) {
            if (!items_.HasSelection())
                return;
            items_.SetFlag(static_cast<HighlightFlag>(i), on) ? changed_() : Refused();
            Refresh();
        });
    connect(sounds_, &QComboBox::activated, this, &HighlightPage::ChooseSound);
}

void HighlightPage::Refresh()
{
    model_->Reload();
    const QModelIndex current = model_->index(items_.Selected(), 0);
    list_->setCurrentIndex(current);
    list_->scrollTo(current);
    SelectionChanged();
}

void HighlightPage::SelectionChanged()
{
    const bool list = kind_ != HighlightPageKind::DefaultStrings;
    const bool strings = kind_ == HighlightPageKind::UserStrings;
    const bool selected = list && items_.HasSelection();
    for (PageButton b : {PageButton::New, PageButton::Sort, PageButton::Transparent})
        Button(b)->setEnabled(list);
    for (PageButton b : {PageButton::Change, PageButton::Delete})
        Button(b)->setEnabled(selected);
    for (QCheckBox* box : boxes_)
        box->setEnabled(selected);
    sounds_->setEnabled(strings && selected);
    Button(PageButton::Browse)->setEnabled(strings && selected);
    const HighlightItem item =
        selected ? items_.Parsed(static_cast<std::size_t>(items_.Selected())) : HighlightItem{};
    Box(HighlightFlag::EntireLine)->setChecked(item.EntireLine);
    Box(HighlightFlag::NotOnWordBoundary)->setChecked(item.NotOnWordBoundary);
    Box(HighlightFlag::CaseSensitive)->setChecked(item.CaseSensitive);
    const int entry = item.Sound.empty() ? -1 : sounds_->findText(Latin(item.Sound));
    sounds_->setCurrentIndex(entry < 0 ? 0 : entry);
    Button(PageButton::Play)->setEnabled(strings && selected && sounds_->currentIndex() > 0);
}

void HighlightPage::Refused()
{
    links_.Messages.ShowMessage(this,
                                "That does not fit: a highlight holds at most 80 characters, "
                                "its sound and markers included.",
                                SHEET_TITLE);
}

void HighlightPage::ShowSlotsLeft()
{
    slotsLeft_->setText(QString::asprintf("%4d", items_.SlotsLeft()));
}

void HighlightPage::New()
{
    if (kind_ == HighlightPageKind::DefaultStrings || items_.Full())
        return;
    char answer[HIGHLIGHT_ASK_LIMIT + 1] = {};
    links_.Dialogs.AskString(this, ASK_TITLE, answer, sizeof answer);
    if (!items_.New(answer))
        return;
    changed_();
    Refresh();
    ShowSlotsLeft();
    list_->setFocus();
}

void HighlightPage::Change()
{
    if (kind_ == HighlightPageKind::DefaultStrings || !items_.HasSelection())
        return;
    // The limit leaves room for the item's sound and markers, and never passes the buffer.
    const std::size_t capacity = items_.AskLimit() + 1;
    char answer[HIGHLIGHT_ASK_LIMIT + 1] = {};
    CopyCut(answer, capacity,
            items_.Parsed(static_cast<std::size_t>(items_.Selected())).Match.c_str());
    links_.Dialogs.AskString(this, ASK_TITLE, answer, capacity);
    if (items_.Change(answer))
        changed_();
    Refresh();
    list_->setFocus();
}

void HighlightPage::ChooseSound(int entry)
{
    if (!items_.HasSelection())
        return;
    const std::string sound = entry > 0 ? sounds_->itemText(entry).toLatin1().toStdString() : "";
    items_.SetSound(sound) ? changed_() : Refused();
    Refresh();
}

void HighlightPage::Play()
{
    const int entry = sounds_->currentIndex();
    if (entry <= 0)
        return;
    const QByteArray name = sounds_->itemText(entry).toLatin1();
    if (!links_.Sounds.TryPlay(name.constData()))
        links_.Messages.ShowMessage(
            this,
            ("The sound \"" + name.toStdString() + "\" is no longer in the sound folder.").c_str(),
            SHEET_TITLE);
}

void HighlightPage::Browse()
{
    if (!items_.HasSelection())
        return;
    const std::string& folder = links_.Sounds.SoundPath();
    const std::string path = links_.Dialogs.ChooseSoundFile(this, folder);
    if (path.empty())
        return;
    const SoundImport import = ImportSoundFile(path, folder);
    if (!import.Error.empty()) {
        links_.Messages.ShowMessage(this, import.Error.c_str(), "File Error");
        return;
    }
    FillSounds();
    ChooseSound(std::max(0, sounds_->findText(Latin(import.Choice))));
}

void HighlightPage::ClickCell(int cell, bool left)
{
    if (!items_.HasSelection())
        return;
    if (left)
        items_.LeftClickCell(cell);
    else
        items_.RightClickCell(cell);
    changed_();
    Refresh();
}

void HighlightPage::Apply()
{
    if (kind_ == HighlightPageKind::DefaultStrings)
        items_.ApplySamples(links_.Options);
    else
        items_.Apply(kind_ == HighlightPageKind::UserStrings ? links_.Lists.StringHighlights
                                                             : links_.Lists.NameHighlights);
}

} // namespace steward
