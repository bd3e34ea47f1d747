#include "session/qt/ConnectDialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace steward {
namespace {

QPushButton* Button(ConnectDialog& dialog, const char* text)
{
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
        if (button->text() == QLatin1String(text))
            return button;
    return nullptr;
}

TEST(ConnectDialog, ShowsTheStoredHostAndPort)
{
    ConnectDialog dialog("game.example", 4000);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Thornmere"));
    EXPECT_EQ(dialog.HostField()->text(), QStringLiteral("game.example"));
    EXPECT_EQ(dialog.PortField()->text(), QStringLiteral("4000"));
    EXPECT_EQ(dialog.HostField()->maxLength(), HOST_FIELD_LIMIT);
    EXPECT_EQ(dialog.PortField()->maxLength(), PORT_FIELD_LIMIT);
}

TEST(ConnectDialog, EachButtonEndsWithItsChoice)
{
    const struct {
        const char* button;
        ConnectChoice choice;
    } cases[] = {{"Connect", ConnectChoice::Connect},
                 {"Run in OFFLINE Mode", ConnectChoice::Offline},
                 {"Cancel", ConnectChoice::Cancel}};
    for (const auto& c : cases) {
        ConnectDialog dialog("h", 1);
        QPushButton* button = Button(dialog, c.button);
        ASSERT_NE(button, nullptr) << c.button;
        button->click();
        EXPECT_EQ(dialog.Choice(), c.choice) << c.button;
    }
}

TEST(ConnectDialog, PortReadsItsLeadingDigits)
{
    ConnectDialog dialog("h", 1);
    const struct {
        const char* text;
        int port;
    } cases[] = {{"34283", 34283}, {"23abc", 23}, {"abc", 0}, {"", 0}, {"99999", 0}};
    for (const auto& c : cases) {
        dialog.PortField()->setText(QString::fromLatin1(c.text));
        EXPECT_EQ(dialog.Port(), c.port) << c.text;
    }
}

} // namespace
} // namespace steward
