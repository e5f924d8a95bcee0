// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// menu-picture FILE HOME: a PNG of a menu of applications, rofi, on the display that this runs on, with the
// profiles of a made-up home among them. HOME is the home's path; nothing may exist there.

#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScreen>
#include <QTimer>

#include <utility>

#include "PictureHome.h"
#include "artwork/ProfileIcon.h"
#include "support/OwnHome.h"

namespace selvane::test {
namespace {

// One row of large icons, on grey.
constexpr auto kTheme = R"(
* { background-color: transparent; text-color: #ececed; border: 0px; padding: 0px; margin: 0px; spacing: 0px; font: "Sans 9"; }
window { width: 1160px; padding: 32px 40px 44px; border-radius: 16px; background-color: #29292c; }
mainbox { children: [inputbar, listview]; spacing: 32px; }
inputbar { children: [entry]; padding: 12px 20px; border-radius: 20px; background-color: #3d3d40; margin: 0px 340px; }
entry { font: "Sans 11"; }
listview { columns: 6; lines: 1; fixed-height: true; scrollbar: false; }
element { orientation: vertical; padding: 16px 0px 24px; spacing: 16px; border-radius: 16px; }
element selected { background-color: #3b3b3d; }
element-icon { size: 96px; horizontal-align: 0.5; }
element-text { horizontal-align: 0.5; highlight: none; }
)";

void wait(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QImage screen() {
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

/// What the display shows once it has changed and then stayed the same for a moment; null if it doesn't.
QImage changed(const QImage& empty) {
    constexpr int kMilliseconds = 300;
    constexpr int kLooks = 50;
    QImage before = empty;
    for (int look = 0; look < kLooks; ++look) {
        wait(kMilliseconds);
        QImage now = screen();
        if (now != empty && now == before)
            return now;
        before = std::move(now);
    }
    return {};
}

int takeMenu(const QString& file, const std::string& place, const QString& display) {
    const PictureHome home(place);
    for (const Profile& profile : home.store.loadAll()) {
        if (profile.id != "laboratorio") // a row has six
            home.claude.entries().add(profile, SELVANE_EXECUTABLE, profileIcon);
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", QString::fromStdString(place));
    environment.insert("DISPLAY", display);
    environment.remove("XDG_CACHE_HOME");
    const QString theme = QString::fromStdString((home / "menu.rasi").string());
    writeFile(home / "menu.rasi", kTheme);
    const QImage empty = screen();
    QProcess menu;
    menu.setProcessEnvironment(environment);
    menu.start("rofi",
               {"-no-config", "-show", "drun", "-show-icons", "-icon-theme", "hicolor", "-display-drun", "",
                "-drun-display-format", "{name}", "-filter", "claude", "-theme", theme});
    const QImage picture = changed(empty);
    menu.terminate();
    menu.waitForFinished();
    if (picture.isNull())
        qFatal("the menu hasn't come: %s", menu.readAllStandardError().constData());
    return picture.save(file) ? 0 : 1;
}

} // namespace
} // namespace selvane::test

int main(int argc, char** argv) {
    const QString display = qEnvironmentVariable("DISPLAY");
    const QGuiApplication application(argc, argv);
    const selvane::test::OwnHome home; // without a display
    if (argc != 3 || std::filesystem::exists(argv[2]))
        qFatal("usage: menu-picture FILE HOME, where nothing may exist at HOME");
    return selvane::test::takeMenu(QString::fromLocal8Bit(argv[1]), argv[2], display);
}
