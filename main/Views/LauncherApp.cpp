// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/LauncherApp.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QThreadPool>

#include <memory>

#include "AppModel.h"
#include "Preferences.h"
#include "Views/QmlModule.h"
#include "Views/SingleInstance.h"
#include "Views/SystemBridge.h"
#include "artwork/Brand.h"
#include "model/LauncherError.h"

namespace selvane {
namespace {

/// Without a platform to draw on, Qt would end the process itself.
void requireDisplay() {
    const bool isChosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!isChosen && qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        throw LauncherError("Nessuno schermo disponibile: senza, Selvane si usa con i suoi comandi");
}

QString preferencesFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/selvane/preferenze.conf";
}

std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const char* file, AppModel& model) {
    // By way of its module: a file opened by its place alone doesn't see the module's own types.
    QQmlComponent component(&engine);
    component.setData(QStringLiteral("import Selvane\n%1 {}").arg(file).toUtf8(), {});
    if (!component.isReady())
        throw LauncherError("Finestra non utilizzabile: " + component.errorString().toStdString());
    QObject* made = component.createWithInitialProperties({{"app", QVariant::fromValue(&model)}});
    auto* window = qobject_cast<QQuickWindow*>(made);
    if (window == nullptr)
        throw LauncherError("Finestra non utilizzabile: " + component.errorString().toStdString());
    return std::unique_ptr<QQuickWindow>(window);
}

void bringToFront(QQuickWindow& window) {
    window.show();
    window.raise();
    window.requestActivate();
}

} // namespace

int runLauncherApp(int argc, char** argv) {
    requireDisplay();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(Brand::name);
    QGuiApplication::setDesktopFileName(QStringLiteral("selvane"));
    SingleInstance instance;
    if (!instance.claim())
        return 0;
    Brand::registerFonts();

    const Environment environment = currentEnvironment();
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    SystemClock clock;
    const ClaudeApp claude(*workspace, clock);
    ProfileStore store(environment, claude);
    Preferences preferences(preferencesFile());
    SystemBridge bridge(claude);
    AppModel model(store, claude, bridge, preferences);

    qml_register_types_Selvane();
    QQmlEngine engine;
    const auto picker = makeWindow(engine, "PickerWindow", model);
    QObject::connect(&instance, &SingleInstance::startedAgain, picker.get(), [&] { bringToFront(*picker); });
    QObject::connect(picker.get(), &QWindow::visibleChanged, &bridge,
                     [&](bool visible) { bridge.setWatching(visible); });
    bringToFront(*picker);
    const int status = QGuiApplication::exec();
    QThreadPool::globalInstance()->waitForDone(); // what still reads uses the store
    return status;
}

} // namespace selvane
