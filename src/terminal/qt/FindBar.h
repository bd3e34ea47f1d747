#pragma once

#include "terminal/TextSearch.h"

#include <QWidget>

#include <functional>
#include <string>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace steward {

// The find bar of a text window: a field, Previous (older text) and Next (newer text), Match
// case, and a word on the result. Enter finds the previous match, Shift-Enter the next one,
// Escape closes the bar.
class FindBar : public QWidget {
    Q_OBJECT
  public:
    // Find gives whether a match was found; Closed hands the focus back.
    struct Handlers {
        std::function<bool(const std::string& needle, SearchDirection direction, bool matchCase)>
            Find;
        std::function<void()> Closed;
    };

    FindBar(Handlers handlers, QWidget* parent);

    // Shows the bar with its field focused and its text selected.
    void Open();
    void Close();
    QLineEdit* Field() const { return field_; }
    QString Result() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Find(SearchDirection direction);

    Handlers handlers_;
    QLineEdit* field_;
    QCheckBox* matchCase_;
    QLabel* result_;
};

} // namespace steward
