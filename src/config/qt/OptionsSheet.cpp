#include "config/qt/OptionsSheet.h"

#include "base/ByteText.h"
#include "base/Trace.h"
#include "base/qt/CenterWindow.h"
#include "config/IniStore.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace steward {

namespace {

constexpr const char* TAB_TITLES[] = {" Settings ", " Inventory Names ", " Paths ", " Steward "};

struct FlagControl {
    const char* Label;
    std::uint8_t Settings::*Field;
};

constexpr FlagControl FLAGS[SettingsPage::FLAG_COUNT] = {
    {"Buffered Screen Updates (Recommended)", &Settings::BufferedUpdates},
    {"Show Cursor in Game Screen", &Settings::ShowCursor},
    {"Honor NumLock Setting", &Settings::HonorNumLock},
    {"Squelch Sounds", &Settings::SquelchSounds},
    {"Compress Thought Messages", &Settings::CompressThoughtMessages},
    {"Ignore Yells", &Settings::IgnoreYells},
    {"Only Show Arrival of Players in my Highlight List", &Settings::OnlyListedArrivals},
    {"Show Status Prompt", &Settings::ShowStatusPrompt},
    {"Local Echo", &Settings::LocalEcho},
};

// The number edit takes at most three digits.
constexpr int MIN_LENGTH_LIMIT = 999;

struct EquipControl {
    const char* Label;
    char (CharacterProfile::*Field)[EQUIP_COMMAND_SIZE];
};

constexpr EquipControl EQUIPMENT[InventoryPage::COMMAND_COUNT] = {
    {"To ready your weapon:", &CharacterProfile::EquipWeapon},
    {"To sheath your weapon:", &CharacterProfile::UnequipWeapon},
    {"To ready your shield:", &CharacterProfile::EquipShield},
    {"To remove your shield:", &CharacterProfile::UnequipShield},
};

struct PathControl {
    const char* Label;
    const char* Key;
    const char* PickTitle;
    std::string (*Current)(const ConfigFiles&);
};

const PathControl PATHS[PathsPage::PATH_COUNT] = {
    {"S&ound Path:", "Sound Path", "Where Are Your WAV Files Located?", &SoundPath},
    {"S&cript Path:", "Script Path", "Where Are Your Script Files Located?", &ScriptPath},
};

QLineEdit* LimitedEdit(QWidget* parent, int limit, const QString& text)
{
    auto* edit = new QLineEdit(text, parent);
    edit->setMaxLength(limit);
    return edit;
}

} // namespace

SettingsPage::SettingsPage(Settings& settings) : settings_(settings)
{
    auto* layout = new QVBoxLayout(this);
    for (int i = 0; i < FLAG_COUNT; ++i) {
        flags_[i] = new QCheckBox(QString::fromLatin1(FLAGS[i].Label), this);
        flags_[i]->setChecked(settings_.*FLAGS[i].Field != 0);
        layout->addWidget(flags_[i]);
    }
    auto* length = new QHBoxLayout;
    length->addWidget(new QLabel(QStringLiteral("Don't Remember Commands Shorter Than"), this));
    minLength_ = LimitedEdit(this, 3, QString::number(settings_.MinCommandLength));
    minLength_->setValidator(new QIntValidator(0, MIN_LENGTH_LIMIT, minLength_));
    length->addWidget(minLength_);
    length->addWidget(new QLabel(QStringLiteral("Characters"), this));
    layout->addLayout(length);
    auto* prefix = new QHBoxLayout;
    prefix->addWidget(new QLabel(QStringLiteral("Prefix .CMD commands with:"), this));
    const char shown = settings_.CommandPrefix ? settings_.CommandPrefix : '.';
    prefix_ = LimitedEdit(this, 1, QString(QChar::fromLatin1(shown)));
    prefix->addWidget(prefix_);
    layout->addLayout(prefix);
}

void SettingsPage::Apply()
{
    for (int i = 0; i < FLAG_COUNT; ++i)
        settings_.*FLAGS[i].Field = flags_[i]->isChecked() ? 1 : 0;
    const QByteArray prefix = prefix_->text().toLatin1();
    settings_.CommandPrefix = prefix.isEmpty() ? '.' : prefix[0];
    settings_.MinCommandLength = static_cast<std::int16_t>(minLength_->text().toInt());
}

InventoryPage::InventoryPage(CharacterProfile& profile) : profile_(profile)
{
    auto* grid = new QGridLayout(this);
    for (int i = 0; i < COMMAND_COUNT; ++i) {
        grid->addWidget(new QLabel(QString::fromLatin1(EQUIPMENT[i].Label), this), i, 0);
        edits_[i] = LimitedEdit(this, EQUIP_COMMAND_SIZE - 1,
                                QString::fromLatin1(profile_.*EQUIPMENT[i].Field));
        grid->addWidget(edits_[i], i, 1);
    }
}

void InventoryPage::Apply()
{
    for (int i = 0; i < COMMAND_COUNT; ++i)
        CopyCut(profile_.*EQUIPMENT[i].Field, EQUIP_COMMAND_SIZE,
                edits_[i]->text().toLatin1().constData());
}

PathsPage::PathsPage(const ConfigFiles& files, FolderPicker pick)
    : files_(files), pick_(std::move(pick))
{
    auto* grid = new QGridLayout(this);
    for (int i = 0; i < PATH_COUNT; ++i) {
        auto* label = new QLabel(QString::fromLatin1(PATHS[i].Label), this);
        edits_[i] = LimitedEdit(this, FOLDER_VALUE_SIZE - 1,
                                QString::fromLocal8Bit(PATHS[i].Current(files_).c_str()));
        label->setBuddy(edits_[i]);
        auto* locate = new QPushButton(QStringLiteral("Locate"), this);
        connect(locate, &QPushButton::clicked, this, [this, i] { Locate(i); });
        grid->addWidget(label, i, 0);
        grid->addWidget(edits_[i], i, 1);
        grid->addWidget(locate, i, 2);
    }
}

void PathsPage::Locate(int index)
{
    const std::string folder = pick_(this, PATHS[index].PickTitle);
    if (!folder.empty())
        edits_[index]->setText(QString::fromLocal8Bit(folder.c_str()));
}

void PathsPage::Apply()
{
    for (int i = 0; i < PATH_COUNT; ++i) {
        char value[FOLDER_VALUE_SIZE];
        CopyCut(value, sizeof value, edits_[i]->text().toLocal8Bit().constData());
        // Like every main ini value, a folder that cannot be written is traced, not shown.
        if (!WriteString(files_.MainIni, "Config", PATHS[i].Key, value))
            Trace("Could not write %s to \"%s\"\n", PATHS[i].Key, files_.MainIni.c_str());
    }
}

StewardPage::StewardPage(StewardOptions& options, const ConfigFiles& files, OptionGate gate)
    : options_(options), files_(files), gate_(std::move(gate))
{
    auto* grid = new QGridLayout(this);
    for (const StewardOptionRow& row : StewardOptionTable) {
        const QString label = QString::fromLatin1(row.Label);
        if (row.Minimum == 0 && row.Maximum == 1) {
            QCheckBox* check = new QCheckBox(label, this);
            check->setChecked(options_.IsOn(row.Option));
            connect(check, &QCheckBox::toggled, this, [this, check, option = row.Option](bool on) {
                if (on && gate_ && !gate_(option, this))
                    check->setChecked(false);
            });
            grid->addWidget(check, row.Option, 0, 1, 2);
            checks_[row.Option] = check;
            continue;
        }
        auto* number = new QSpinBox(this);
        number->setRange(row.Minimum, row.Maximum);
        number->setValue(options_.Get(row.Option));
        grid->addWidget(new QLabel(label, this), row.Option, 0);
        grid->addWidget(number, row.Option, 1);
        numbers_[row.Option] = number;
    }
    grid->setRowStretch(STEWARD_OPTION_COUNT, 1);
}

void StewardPage::Apply()
{
    for (const StewardOptionRow& row : StewardOptionTable)
        options_.Set(row.Option, checks_[row.Option] ? checks_[row.Option]->isChecked()
                                                     : numbers_[row.Option]->value());
    // Like the folders, the options hold for this run even when the main ini cannot keep them.
    if (!options_.Save(files_.MainIni))
        Trace("Could not write the %s options to \"%s\"\n", STEWARD_SECTION,
              files_.MainIni.c_str());
}

OptionsSheet::OptionsSheet(OptionsTarget target, FolderPicker pick, QWidget* owner, OptionGate gate)
    : TabbedSheet(
          owner, QStringLiteral("Configuration Options"), TAB_TITLES,
          [target, pick = std::move(pick), gate = std::move(gate)](int tab) -> OptionsPage* {
              if (tab == 0)
                  return new SettingsPage(target.Profile.Settings);
              if (tab == 1)
                  return new InventoryPage(target.Profile);
              if (tab == 2)
                  return new PathsPage(target.Files, pick);
              return new StewardPage(target.Steward, target.Files, gate);
          })
{
}

bool ShowOptions(QWidget* owner, OptionsTarget target, FolderPicker pick, OptionGate gate)
{
    OptionsSheet sheet(target, std::move(pick), owner, std::move(gate));
    CenterWindow(sheet);
    return sheet.exec() == QDialog::Accepted;
}

} // namespace steward
