#include "session/qt/ConnectDialog.h"

#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace steward {
namespace {

TEST(ConnectDialog, ShowsTheStoredAddressAndEachButtonEndsWithItsChoice)
{
    const struct {
        const char* button;
        ConnectChoice choice;
    } cases[] = {{"Connect", ConnectChoice::Connect},
                 {"Run in OFFLINE Mode", ConnectChoice::Offline},
                 {"Cancel", ConnectChoice::Cancel}};
    for (const auto& c : cases) {
        ConnectDialog dialog("game.example", 4000);
        EXPECT_EQ(dialog.HostField()->text(), QStringLiteral("game.example"));
        EXPECT_EQ(dialog.PortField()->text(), QStringLiteral("4000"));
        EXPECT_EQ(dialog.HostField()->maxLength(), HOST_FIELD_LIMIT);
        EXPECT_EQ(dialog.PortField()->maxLength(), PORT_FIELD_LIMIT);
        dialog.PortField()->setText(QStringLiteral("23abc"));
        EXPECT_EQ(dialog.Port(), 23);
        QPushButton* button = nullptr;
        for (QPushButton* each : dialog.findChildren<QPushButton*>())
            button = each->text() == QLatin1String(c.button) ? each : button;
        ASSERT_NE(button, nullptr) << c.button;
        button->click();
        EXPECT_EQ(dialog.Choice(), c.choice) << c.button;
    }
}

} // namespace
} // namespace steward
