// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QDBusArgument>
#include <QGuiApplication>

#include <gtest/gtest.h>
#include <optional>

#include "Views/linux/FakePortal.h"
#include "Views/linux/PortalSaveDialog.h"
#include "Views/shell/SystemAppearance.h"
#include "support/HandleUntil.h"

namespace selvane::test {

namespace {

void waitUntil(const std::function<bool()>& holds) {
    ASSERT_TRUE(handleUntil(holds));
}

class Portal : public testing::Test {
protected:
    Portal() {
        QObject::connect(&dialog, &PortalSaveDialog::chosen,
                         [this](const QUrl& file) { end = file.toString(); });
        QObject::connect(&dialog, &PortalSaveDialog::cancelled, [this] { end = "cancelled"; });
        QObject::connect(&dialog, &PortalSaveDialog::unavailable, [this] { end = "unavailable"; });
    }
    ~Portal() override { QDBusConnection::disconnectFromBus("desktop"); }

    void appear() {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "desktop");
        ASSERT_TRUE(bus.registerObject(kPortalPath, &desktop));
        ASSERT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
    }
    void ask() { dialog.ask(nullptr, "Salva", "/home/anna/Caffè e latte", "Copia.zip"); }

    QObject desktop;
    FakeFileChooser* chooser = new FakeFileChooser(&desktop);
    FakeSettings* settings = new FakeSettings(&desktop);
    PortalSaveDialog dialog;
    std::optional<QString> end;
};

TEST_F(Portal, saveDialog_NoPortal_IsUnavailable) {
    ask();
    EXPECT_FALSE(end) << "never at once";
    waitUntil([&] { return end.has_value(); });
    EXPECT_EQ(end, "unavailable");
}

TEST_F(Portal, saveDialog_AnswersOnceToTheLastQuestion) {
    appear();
    ask();
    waitUntil([&] { return !chooser->requests.isEmpty(); });
    EXPECT_EQ(chooser->options.value("current_name").toString(), "Copia.zip");
    EXPECT_EQ(chooser->options.value("current_folder").toByteArray(),
              QByteArray("/home/anna/Caffè e latte") + '\0');
    EXPECT_EQ(chooser->options.value("filters").value<QDBusArgument>().currentSignature(), "a(sa(us))");

    const auto openDialogs = [&] { return chooser->requests.size() - chooser->closed.size(); };
    ask();
    ask(); // before the desktop has answered
    waitUntil([&] { return chooser->requests.size() == 3 && openDialogs() == 1; });
    EXPECT_EQ(chooser->closed, chooser->requests.first(2));
    FakeFileChooser::answer(chooser->requests.first(), 0, {{"uris", QStringList{"file:///early.zip"}}});
    chooser->answer(0, {{"uris", QStringList{"file:///home/anna/Caff%C3%A8.zip"}}});
    waitUntil([&] { return end.has_value(); });
    EXPECT_EQ(end, "file:///home/anna/Caffè.zip");

    // Cancelled by the button, by Escape.
    for (const uint response : {1U, 2U}) {
        end.reset();
        const auto before = chooser->requests.size();
        ask();
        waitUntil([&] { return chooser->requests.size() > before; });
        chooser->answer(response, {});
        waitUntil([&] { return end.has_value(); });
        EXPECT_EQ(end, "cancelled");
    }

    EXPECT_FALSE(chooser->opens);
    end.reset();
    dialog.askForExisting(nullptr, "Scegli", "/home/anna");
    waitUntil([&] { return chooser->opens; });
    EXPECT_FALSE(chooser->options.contains("current_name"));
    chooser->answer(0, {{"uris", QStringList{"file:///home/anna/b.zip"}}});
    waitUntil([&] { return end.has_value(); });
    EXPECT_EQ(end, "file:///home/anna/b.zip");
}

TEST_F(Portal, appearance_FollowsTheDesktop) {
    appear();
    SystemAppearance appearance;
    const double before = appearance.textScale();
    appearance.read();
    waitUntil([&] { return appearance.textScale() != before; });
    EXPECT_DOUBLE_EQ(appearance.textScale(), 1.25 * before);
    EXPECT_FALSE(appearance.reducedMotion());
    emit settings->SettingChanged("org.gnome.desktop.interface", "enable-animations", QDBusVariant(false));
    waitUntil([&] { return appearance.reducedMotion(); });
    emit settings->SettingChanged("org.gnome.desktop.interface", "text-scaling-factor", QDBusVariant(40.0));
    waitUntil([&] { return appearance.textScale() == 2; });
    emit settings->SettingChanged("org.kde.kdeglobals.KDE", "AnimationDurationFactor", QDBusVariant("1.0"));
    waitUntil([&] { return !appearance.reducedMotion(); });
}

} // namespace
} // namespace selvane::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
