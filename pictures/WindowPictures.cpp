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

/// Scrolls the detail of the management window.
void scrollDetail(QQuickWindow* window, double y) {
    for (QQuickItem* view : window->findChildren<QQuickItem*>()) {
        if (view->inherits("QQuickFlickable") &&
            view->property("contentHeight").toDouble() > y + view->height())
            view->setProperty("contentY", y);
    }
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

QQuickItem& labelled(Scene& scene, const char* label) {
    QQuickItem* found = itemWith(*scene.launcher.window(kManage)->contentItem(), "label", label);
    if (found == nullptr)
        qFatal("%s is missing", label);
    return *found;
}

/// Opens or closes a section of the detail.
void fold(Scene& scene, const char* title) {
    QMetaObject::invokeMethod(&labelled(scene, title), "clicked");
}

/// Scrolls the detail to where the middle of the control with this label is so far below the window's top.
void scrollTo(Scene& scene, const char* label, double y) {
    const QQuickItem& control = labelled(scene, label);
    for (QQuickItem* above = control.parentItem(); above != nullptr; above = above->parentItem()) {
        const double top = above->property("contentY").toDouble();
        if (above->inherits("QQuickFlickable") && above->property("interactive").toBool())
            above->setProperty("contentY", top + control.mapToScene({0, control.height() / 2}).y() - y);
    }
}

void takeManage(Scene& scene) {
    scene.launcher.showManage();
    scene.resize(kManage, {880, 600});
    scene.take(kManage, "manage-narrow");
    scene.resize(kManage, {1000, 700});
    takeConversations(scene);
    scene.model.select("");
    scene.take(kManage, "manage-empty");
    scene.model.select("lavoro");
    for (const char* title : {"Skill", "Agenti"})
        fold(scene, title);
    scrollDetail(scene.launcher.window(kManage), 480);
    scene.take(kManage, "manage-components");
    for (const char* title : {"Skill", "Agenti"})
        fold(scene, title);
    QQuickItem& field = labelled(scene, "Filtra le 38 skill");
    field.parentItem()->property("items").value<QObject*>()->setProperty("filter", "co");
    scrollTo(scene, "Filtra le 38 skill", 240);
    scene.take(kManage, "manage-filter");
    field.parentItem()->property("items").value<QObject*>()->setProperty("filter", "");
    scrollDetail(scene.launcher.window(kManage), 0);
    scene.take(kManage, "manage");
}

void takeSheets(Scene& scene) {
    scene.launcher.showManage();
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

/// The menu of an item that no longer follows the source, how it differs, and a file that no longer does.
void takeDrift(Scene& scene, PictureHome& home) {
    constexpr double kPlace = 230; // with room below for the menu
    scrollTo(scene, "Azioni per «code-review»", kPlace);
    QQuickItem* menu = itemWith(*scene.launcher.window(kManage)->contentItem(), "isFile", true);
    if (menu == nullptr)
        qFatal("the item's menu is missing");
    QMetaObject::invokeMethod(&labelled(scene, "Azioni per «code-review»"), "clicked");
    QMetaObject::invokeMethod(menu, "move", Q_ARG(int, 1));
    scene.take(kManage, "manage-drift");
    QObject* component = menu->property("component").value<QObject*>();
    QMetaObject::invokeMethod(menu, "close");
    scrollDetail(scene.launcher.window(kManage), 0);
    scene.takeWith(kManage, "DifferencesSheet", {{"component", QVariant::fromValue(component)}},
                   "differences");
    home.changeRules();
    scene.model.reload();
    scrollTo(scene, "Regole globali (CLAUDE.md)", 2 * kPlace);
    scene.take(kManage, "manage-drift-file");
    scrollDetail(scene.launcher.window(kManage), 0);
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
        takeSheets(scene);
        home.addSkills();
        scene.model.reload();
        takeManage(scene);
        takeDrift(scene, home);
        takeSignIn(scene, home);
        takeOffer(scene);
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
