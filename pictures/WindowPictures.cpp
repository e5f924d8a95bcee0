// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// window-pictures [FOLDER [HOME]]: one PNG of each window, sheet, alert and state, drawn from a made-up home;
// without FOLDER they are drawn all the same, but not kept. HOME is the home's path, which the pictures show;
// nothing may exist there. Fails if a view prints a warning.

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTextStream>
#include <QTimer>

#include <optional>
#include <utility>

#include "AppModel/WorkProgress.h"
#include "PictureHome.h"
#include "Scene.h"
#include "Views/shell/LauncherApp.h"
#include "Views/shell/QmlModule.h"
#include "artwork/Brand.h"
#include "model/LauncherError.h"
#include "support/OwnHome.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {
namespace {

bool hasWarned = false;

void noteWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    QTextStream(stderr) << message << '\n';
    // Qt itself prints these where there is no desktop.
    const bool isUsual = message.startsWith("QStandardPaths: XDG_RUNTIME_DIR") ||
                         message.startsWith("This plugin does not support");
    hasWarned = hasWarned || (type != QtDebugMsg && !isUsual);
}

constexpr auto kPicker = LauncherApp::Picker;
constexpr auto kManage = LauncherApp::Manage;

/// Scrolls the detail of the management window.
void scrollDetail(QQuickWindow* window, double y) {
    for (QQuickItem* view : window->findChildren<QQuickItem*>()) {
        if (view->inherits("QQuickFlickable") &&
            view->property("contentHeight").toDouble() > y + view->height())
            view->setProperty("contentY", y);
    }
}

void takePicker(Scene& scene) {
    scene.model.select("lavoro");
    scene.launcher.showPicker();
    scene.take(kPicker, "picker");
    scene.resize(kPicker, {720, 560});
    scene.take(kPicker, "picker-narrow");
    scene.resize(kPicker, {980, 660});
}

void takeManage(Scene& scene) {
    scene.launcher.showManage();
    scene.take(kManage, "manage");
    scrollDetail(scene.launcher.window(kManage), 640);
    scene.take(kManage, "manage-components");
    scrollDetail(scene.launcher.window(kManage), 0);
    scene.resize(kManage, {880, 600});
    scene.take(kManage, "manage-narrow");
    scene.resize(kManage, {1000, 700});
    takeConversations(scene);
    scene.model.select("");
    scene.take(kManage, "manage-empty");
    scene.model.select("lavoro");
}

void takeSheets(Scene& scene) {
    takeRestore(scene);
    const QVariant app = QVariant::fromValue(&scene.model);
    scene.takeWith(kManage, "NewProfileSheet", {{"app", app}, {"initialSource", "default"}},
                   "new-profile-sheet");
    scene.takeWith(kManage, "NewProfileSheet", {{"app", app}}, "new-profile-sheet-empty");
    scene.takeWith(kManage, "ImportSheet", {{"app", app}, {"target", "lavoro"}, {"component", "skills"}},
                   "import-sheet");
    scene.takeWith(kManage, "SessionImportSheet", {{"app", app}, {"target", "lavoro"}},
                   "session-import-sheet");
    scene.takeWith(kManage, "BackupSheet", {{"app", app}}, "backup-sheet");
}

/// The first item below `item` whose property has this value; null if there is none.
QQuickItem* itemWith(const QQuickItem& item, const char* property, const QVariant& value) {
    for (QQuickItem* child : item.childItems()) {
        if (child->property(property).isValid() && child->property(property) == value)
            return child;
        if (QQuickItem* found = itemWith(*child, property, value))
            return found;
    }
    return nullptr;
}

/// The menu of an item that no longer follows the source, and how it differs.
void takeDrift(Scene& scene) {
    QQuickWindow* window = scene.launcher.window(kManage);
    scrollDetail(window, 380);
    QQuickItem* button = itemWith(*window->contentItem(), "label", "Azioni per «code-review»");
    QQuickItem* menu = itemWith(*window->contentItem(), "isFile", true);
    if (menu == nullptr || button == nullptr)
        qFatal("the item's menu is missing");
    QMetaObject::invokeMethod(button, "clicked");
    scene.take(kManage, "manage-drift");
    QObject* component = menu->property("component").value<QObject*>();
    QMetaObject::invokeMethod(menu, "close");
    scrollDetail(window, 0);
    scene.takeWith(kManage, "DifferencesSheet", {{"component", QVariant::fromValue(component)}},
                   "differences");
}

/// A sign-in that the browser has ended while several copies may have begun it.
void takeSignIn(Scene& scene, Home& home) {
    const auto apps = std::exchange(home.workspace.apps, {});
    scene.model.receiveSignIn("claude://login/ok?code=1");
    scene.take(kManage, "sign-in-sheet");
    scene.model.answerSignIn(-1);
    home.workspace.apps = apps;
}

/// Half of a large copy.
void takeProgress(Scene& scene) {
    const TemporaryFolder folder;
    writeFile(folder / "grande", "");
    std::filesystem::resize_file(folder / "grande", 1'200'000'000); // takes no room
    const auto progress = std::make_shared<Progress>();
    WorkProgress work;
    work.begin(progress);
    progress->expect(folder.path());
    progress->advance(1, 640'000'000);
    while (work.fraction() < 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    scene.takeWith(
        kPicker, "BusyOverlay",
        {{"message", "Creazione di «Lavoro»…"}, {"delay", 0}, {"work", QVariant::fromValue(&work)}},
        "busy-progress");
    work.cancel();
    scene.takeWith(
        kPicker, "BusyOverlay",
        {{"message", "Creazione di «Lavoro»…"}, {"delay", 0}, {"work", QVariant::fromValue(&work)}},
        "busy-cancelling");
}

void takeFeedback(Scene& scene) {
    scene.takeWith(kManage, "AlertDialog",
                   {{"title", "Spostare «Lavoro» nel Cestino?"},
                    {"message", "La cartella del profilo con skill, regole, sessioni e memoria verrà "
                                "spostata nel Cestino."},
                    {"confirmText", "Sposta nel Cestino"},
                    {"destructive", true}},
                   "alert-delete");
    scene.model.setNotice("Aggiunti 2, rimosso 1 collegamento");
    scene.take(kManage, "notice");
    scene.model.clearNotice();

    scene.launcher.showPicker();
    scene.takeWith(kPicker, "BusyOverlay", {{"message", "Avvio di Claude con «Lavoro»…"}, {"delay", 0}},
                   "busy");
    takeProgress(scene);
    scene.model.perform([&] {
        throw LauncherError("L'account di «Lavoro» è già aperto in Claude: chiudilo "
                            "prima.");
    });
    scene.take(kPicker, "alert-error");
    scene.model.clearError();
    scene.model.launch("lavoro");
    scene.take(kPicker, "alert-account-open");
    scene.model.cancelLaunch();
}

/// Profiles whose record can't be read.
void takeDamaged(Scene& scene, const Home& home) {
    for (const char* id : {"prove-di-marzo", "un-cliente-dal-nome-piuttosto-lungo"})
        writeFile(home.store.root() / id / ".launcher.json", "{");
    scene.model.reload();
    scene.take(kPicker, "picker-damaged");
    scene.resize(kPicker, {720, 560});
    scene.take(kPicker, "picker-damaged-narrow");
    scene.resize(kPicker, {980, 660});
    scene.launcher.showManage();
    scene.take(kManage, "manage-damaged");
}

/// Both windows with text one and a half times as large.
void takeLargeText(Scene& scene) {
    scene.setTheme("textScale", 1.5);
    scene.take(kPicker, "picker-large-text");
    scene.take(kManage, "manage-large-text");
    scene.setTheme("textScale", 1);
}

int takeAll(const std::optional<QDir>& folder, const std::string& place) {
    {
        PictureHome home(place);
        Scene scene(home, folder);
        takePicker(scene);
        takeManage(scene);
        takeSheets(scene);
        takeDrift(scene);
        takeSignIn(scene, home);
        takeFeedback(scene);
        takeLargeText(scene);
        takeDamaged(scene, home);
    }
    Home fresh;
    Scene scene(fresh, folder);
    scene.launcher.showPicker();
    scene.take(kPicker, "picker-first-start");
    return hasWarned ? 1 : 0;
}

} // namespace
} // namespace selvane::test

int main(int argc, char** argv) {
    const selvane::test::OwnHome home;
    // The same picture everywhere, without a display or a graphics card.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SELVANE_SCREEN);
    qputenv("QT_QUICK_BACKEND", "software");
    qInstallMessageHandler(selvane::test::noteWarnings);
    const QGuiApplication application(argc, argv);
    qml_register_types_Selvane();
    if (argc > 3)
        qFatal("usage: window-pictures [FOLDER [HOME]]");
    const std::string place = argc == 3 ? argv[2] : "anna";
    if (std::filesystem::exists(place))
        qFatal("%s is there already", argv[2]);
    std::optional<QDir> folder;
    if (argc > 1) {
        folder.emplace(QString::fromLocal8Bit(argv[1]));
        folder->mkpath(".");
    }
    selvane::Brand::registerFonts();
    return selvane::test::takeAll(folder, place);
}
