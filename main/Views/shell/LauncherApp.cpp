// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/LauncherApp.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <utility>

#include "AppModel/FolderWatch.h"
#include "AppModel/Preferences.h"
#include "Views/controls/TypeStyles.h"
#include "Views/shell/QmlModule.h"
#include "Views/shell/SingleInstance.h"
#include "Views/shell/SystemAppearance.h"
#include "Views/shell/SystemBridge.h"
#include "Views/shell/SystemShell.h"
#include "Views/shell/WindowPlace.h"
#include "artwork/Brand.h"
#include "model/LauncherError.h"
#include "model/WindowRequests.h"

namespace selvane {
namespace {

/// If a display is named but doesn't answer, Qt would abort the process.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "Errore: %s\n", kNoDisplay);
    std::_Exit(EXIT_FAILURE);
}

/// Under which name the preferences know a window.
QString keyOf(LauncherApp::WindowName name) {
    return name == LauncherApp::Picker ? QStringLiteral("picker") : QStringLiteral("manage");
}

/// Creates a type through its module: a file loaded by its URL alone doesn't see the module's own types.
std::unique_ptr<QObject> make(QQmlEngine& engine, const char* type, const QVariantMap& properties) {
    QQmlComponent component(&engine);
    component.setData(QStringLiteral("import Selvane\n%1 {}").arg(type).toUtf8(), {});
    std::unique_ptr<QObject> made;
    if (component.isReady()) // otherwise creating it crashes
        made.reset(component.createWithInitialProperties(properties));
    if (!made)
        throw LauncherError("Finestra non utilizzabile: " + component.errorString().toStdString());
    return made;
}

} // namespace

LauncherApp::LauncherApp(QQmlEngine& engine, AppModel& app, Updates& updates)
    : m_engine(engine), m_app(app), m_updates(updates) {
    connect(&m_engine, &QQmlEngine::quit, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    // Commands may have changed the profiles while another application was active.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive && std::exchange(m_wasLeft, false))
            m_app.reload();
        m_wasLeft = m_wasLeft || state == Qt::ApplicationInactive;
    });
}

LauncherApp::~LauncherApp() = default;

QSize LauncherApp::room() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? QSize() : roomIn(screen->availableSize());
}

std::unique_ptr<QQuickWindow> LauncherApp::makeWindow(WindowName name) {
    std::vector<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.push_back(screen->availableGeometry());
    QVariantMap properties = placeAgain(m_app.preferences().windowPlace(keyOf(name)), screens);
    properties["launcher"] = QVariant::fromValue(this);
    auto made = make(m_engine, name == Picker ? "PickerWindow" : "ManageWindow", properties);
    std::unique_ptr<QQuickWindow> window(static_cast<QQuickWindow*>(made.release()));
    connect(window.get(), &QWindow::visibleChanged, this,
            [this, name, window = window.get()](bool isVisible) {
                if (const QRect place = placeOf(*window); !isVisible && !place.isEmpty())
                    m_app.preferences().setWindowPlace(keyOf(name), place);
                const WindowName other = name == Picker ? Manage : Picker;
                if (!isVisible && this->window(other) != nullptr && this->window(other)->isVisible())
                    setKeyWindow(other);
                emit shownChanged(isShown());
            });
    connect(window.get(), &QWindow::activeChanged, this, [this, name, shown = window.get()] {
        if (shown->isActive())
            setKeyWindow(name);
    });
    return window;
}

void LauncherApp::show(WindowName name) {
    auto& window = m_windows.at(name);
    if (!window)
        window = makeWindow(name);
    setKeyWindow(name);
    window->show();
    window->raise();
    window->requestActivate();
}

void LauncherApp::setKeyWindow(WindowName name) {
    if (m_keyWindow == name)
        return;
    m_keyWindow = name;
    emit keyWindowChanged();
}

bool LauncherApp::isShown() const {
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [](const auto& window) { return window && window->isVisible(); });
}

void LauncherApp::offerNewProfile() {
    // The part of the window that answers is created after its first frame.
    QQuickWindow* picker = window(Picker);
    if (picker->property("isComplete").toBool())
        emit newProfile();
    else
        connect(picker, SIGNAL(isCompleteChanged()), this, SIGNAL(newProfile()), Qt::UniqueConnection);
}

void LauncherApp::answerStart(const QByteArray& request, const QByteArray& token) {
    m_app.perform([&] {
        useStartToken(token);
        answer(request.toStdString());
    });
}

/// Returns the window that it has shown.
LauncherApp::WindowName LauncherApp::answer(const std::string& request) {
    const WindowName wanted = request == kManageRequest ? Manage : Picker;
    show(wanted);
    if (request == kNewProfileRequest) {
        offerNewProfile();
    } else if (request.starts_with(kLaunchRequest)) {
        m_app.reload(); // it may be a new one
        m_app.launch(QString::fromStdString(request.substr(kLaunchRequest.size())));
    } else if (request.starts_with(kErrorRequest)) {
        m_app.setError(QString::fromStdString(request.substr(kErrorRequest.size())));
    } else {
        m_app.receiveSignIn(QByteArray::fromStdString(request));
    }
    return wanted;
}

void LauncherApp::start(const QByteArray& request) {
    const WindowName first = answer(request.toStdString());
    // Only after the first window: none of the rest is worth a delay.
    const auto once = static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);
    connect(window(first), &QQuickWindow::frameSwapped, this, &LauncherApp::begun, once);
}

void LauncherApp::tryToShow(WindowName name) {
    m_app.perform([&] { show(name); });
}

/// Opens a sheet or an alert over the key window. It goes when it closes.
QObject* LauncherApp::makeLayer(const char* type, QVariantMap properties) {
    QQuickItem* parent = window(m_keyWindow)->contentItem();
    properties.insert("parent", QVariant::fromValue(parent));
    QObject* layer = make(m_engine, type, properties).release();
    QQmlEngine::setObjectOwnership(layer, QQmlEngine::CppOwnership);
    layer->setParent(parent);
    connect(layer, SIGNAL(closed()), layer, SLOT(deleteLater()));
    return layer;
}

void LauncherApp::askForArchive(const QString& proposedPlace, bool isThere) {
    m_app.perform([&] {
        QObject* sheet = makeLayer("ArchiveSheet", {{"place", proposedPlace}, {"isThere", isThere}});
        connect(sheet, SIGNAL(chosen(QString)), this, SIGNAL(archiveChosen(QString)));
    });
}

void LauncherApp::askToReplace(const QString& place) {
    m_app.perform([&] {
        QObject* alert = makeLayer("ReplaceAlert", {{"place", place}});
        connect(alert, SIGNAL(answered(bool)), this, SIGNAL(replacementAnswered(bool)));
    });
}

int runLauncherApp(int argc, char** argv) {
    Environment environment = currentEnvironment();
    const QByteArray token = takeStartToken(environment);
    requireDisplay();
    const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
    QGuiApplication application(argc, argv);
    qInstallMessageHandler(usual);
    QGuiApplication::setApplicationName(Brand::name);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.selvane.Selvane"));
    const QByteArray request = argc > 1 ? argv[1] : "";
    SingleInstance instance;
    if (!instance.claim(request, token))
        return 0;
    // In this thread, later, if there can't be another.
    std::future<void> fonts = std::async(std::launch::async | std::launch::deferred, &Brand::readFonts);
    qml_register_types_Selvane();
    QQmlEngine engine;
    // Loaded on the engine's own thread while this one does other things. From time to time, it needs this
    // one.
    const QQmlComponent loading(&engine,
                                QUrl(QStringLiteral("qrc:/qt-project.org/imports/Selvane/PickerWindow.qml")),
                                QQmlComponent::Asynchronous);
    const auto serveLoading = [] { QCoreApplication::sendPostedEvents(); };
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    SystemClock clock;
    const ClaudeApp claude(*workspace, clock, environment);
    ProfileStore store(environment, claude);
    Preferences preferences(openSettings());
    SystemBridge bridge([&store] { return store.claudeInstances(); });
    serveLoading();
    AppModel model(store, claude, bridge, preferences);
    FolderWatch watch(model);
    Updates updates(makeUpdater());
    LauncherApp launcher(engine, model, updates);
    const std::unique_ptr<QObject> shell = makeSystemShell(launcher);
    fonts.get();
    Brand::registerFonts();
    TypeStyles().preload([&] {
        serveLoading();
        return loading.isLoading();
    });

    // What the desktop answers comes after the first frame anyway.
    auto* const appearance =
        engine.singletonInstance<SystemAppearance*>(qmlTypeId("Selvane", 1, 0, "SystemAppearance"));
    QObject::connect(&launcher, &LauncherApp::begun, appearance, &SystemAppearance::read);
    QObject::connect(&launcher, &LauncherApp::begun, &watch, &FolderWatch::start);
    QObject::connect(&launcher, &LauncherApp::begun, &model, &AppModel::completeRestoring);
    QObject::connect(&launcher, &LauncherApp::begun, model.entries(), &EntryKeeper::start);
    QObject::connect(&instance, &SingleInstance::startedAgain, &launcher, &LauncherApp::answerStart);
    QObject::connect(&launcher, &LauncherApp::shownChanged, &bridge, &SystemBridge::setWatching);
    QObject::connect(&model, &AppModel::reloaded, &bridge, &SystemBridge::lookForCopiesAnew);
    QObject::connect(&bridge, &SystemBridge::archiveWanted, &launcher, &LauncherApp::askForArchive);
    QObject::connect(&launcher, &LauncherApp::archiveChosen, &bridge, &SystemBridge::answerArchive);
    QObject::connect(&bridge, &SystemBridge::replacementWanted, &launcher, &LauncherApp::askToReplace);
    QObject::connect(&launcher, &LauncherApp::replacementAnswered, &bridge, &SystemBridge::answerReplacement);
    launcher.start(request);
    const int status = QGuiApplication::exec();
    QThreadPool::globalInstance()->waitForDone(); // tasks that are still reading use the store
    return status;
}

} // namespace selvane
