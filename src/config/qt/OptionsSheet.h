#pragma once

#include "base/qt/TabbedSheet.h"
#include "config/CharacterProfile.h"
#include "config/ConfigFiles.h"
#include "config/StewardOptions.h"

#include <array>
#include <functional>
#include <string>

class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace steward {

// One page of the options sheet: it shows its fields when it is made and writes them back on OK.
using OptionsPage = SheetPage;

// The flags of Settings, the prefix of script commands and the shortest remembered command.
class SettingsPage : public OptionsPage {
  public:
    static constexpr int FLAG_COUNT = 9;

    explicit SettingsPage(Settings& settings);
    void Apply() override;
    QCheckBox* Flag(int index) const { return flags_[index]; }
    QLineEdit* Prefix() const { return prefix_; }
    QLineEdit* MinLength() const { return minLength_; }

  private:
    Settings& settings_;
    std::array<QCheckBox*, FLAG_COUNT> flags_{};
    QLineEdit* prefix_;
    QLineEdit* minLength_;
};

// The four equipment commands of the tool buttons.
class InventoryPage : public OptionsPage {
  public:
    static constexpr int COMMAND_COUNT = 4;

    explicit InventoryPage(CharacterProfile& profile);
    void Apply() override;
    QLineEdit* Command(int index) const { return edits_[index]; }

  private:
    CharacterProfile& profile_;
    std::array<QLineEdit*, COMMAND_COUNT> edits_{};
};

// A folder chosen by the player under a title; empty on Cancel.
using FolderPicker = std::function<std::string(QWidget* owner, const char* title)>;

// Sound Path and Script Path of the main ini, each with a "Locate" button.
class PathsPage : public OptionsPage {
  public:
    static constexpr int PATH_COUNT = 2;

    PathsPage(const ConfigFiles& files, FolderPicker pick);
    void Apply() override;
    QLineEdit* Path(int index) const { return edits_[index]; }
    // The "Locate" button of a path.
    void Locate(int index);

  private:
    const ConfigFiles& files_;
    FolderPicker pick_;
    std::array<QLineEdit*, PATH_COUNT> edits_{};
};

// Asked when the player ticks an option's check box: false unticks it again, after the gate
// has told the player why the option cannot be on.
using OptionGate = std::function<bool(StewardOption option, QWidget* page)>;

// The program's own additions: a check box or a number field per option, written to the main
// ini on OK.
class StewardPage : public OptionsPage {
  public:
    StewardPage(StewardOptions& options, const ConfigFiles& files, OptionGate gate = {});
    void Apply() override;
    // The check box of a row from 0 to 1, otherwise null.
    QCheckBox* Check(StewardOption option) const { return checks_[option]; }
    // The number field of any other row, otherwise null.
    QSpinBox* Number(StewardOption option) const { return numbers_[option]; }

  private:
    StewardOptions& options_;
    const ConfigFiles& files_;
    OptionGate gate_;
    std::array<QCheckBox*, STEWARD_OPTION_COUNT> checks_{};
    std::array<QSpinBox*, STEWARD_OPTION_COUNT> numbers_{};
};

// What the options sheet edits.
struct OptionsTarget {
    CharacterProfile& Profile;
    StewardOptions& Steward;
    const ConfigFiles& Files;
};

// "Configuration Options": four pages, OK and Cancel. The two folders and the program's own
// options are written to the main ini on OK, the rest stays in memory until the profile is saved.
class OptionsSheet : public TabbedSheet {
    Q_OBJECT
  public:
    OptionsSheet(OptionsTarget target, FolderPicker pick, QWidget* owner, OptionGate gate = {});
};

// Runs the sheet modally, centred on the screen; true on OK.
bool ShowOptions(QWidget* owner, OptionsTarget target, FolderPicker pick, OptionGate gate = {});

} // namespace steward
