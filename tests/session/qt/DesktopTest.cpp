#include "session/qt/Desktop.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <string>

namespace steward {
namespace {

TEST(QtDesktop, AskStringFieldTakesNoMoreThanTheAnswerHolds)
{
    QtDesktop desktop;
    char answer[33] = {};
    int typed = 0;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* field = dialog->findChild<QLineEdit*>();
        ASSERT_NE(field, nullptr);
        QTest::keyClicks(field, QString(40, 'a'));
        typed = static_cast<int>(field->text().size());
        dialog->accept();
    });
    ASSERT_TRUE(desktop.AskString(nullptr, "Answer", answer, sizeof answer));
    EXPECT_EQ(typed, 32);
    EXPECT_EQ(std::string(answer), std::string(32, 'a'));
}

} // namespace
} // namespace steward
