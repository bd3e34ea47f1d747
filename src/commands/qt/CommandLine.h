#pragma once

#include "commands/CommandLineEdit.h"

#include <QLineEdit>

namespace steward {

// The command line at the bottom of the frame: an edit control of 255 characters that takes
// only printable ASCII, whatever is typed or pasted into it.
class CommandLine : public QLineEdit, public CommandLineEdit {
    Q_OBJECT
  public:
    explicit CommandLine(QWidget* parent = nullptr);

    std::size_t GetText(char* out, std::size_t capacity) const override;
    void SetText(const char* text) override;
    void SetSelection(int start, int end) override;
    void GetSelection(int& start, int& end) const override;
    void TypeCharacter(char c) override;
    void Cut() override;
    void Copy() override;
    void Paste() override;
    void Clear() override;
    void SetFocus() override;

  private:
    void ReplaceUntypable();
};

} // namespace steward
