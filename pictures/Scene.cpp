// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Scene.h"

#include <QEventLoop>
#include <QImage>
#include <QQmlComponent>
#include <QTimer>

#include <utility>

namespace selvane::test {
namespace {

/// What a window shows once that has stayed the same for a moment: by then what is read on other threads has
/// arrived, and layout and fades have come to their end.
QImage settled(QQuickWindow& window) {
    constexpr int kMilliseconds = 80;
    QImage before;
    QImage now = window.grabWindow();
    while (now != before) {
        QEventLoop loop;
        QTimer::singleShot(kMilliseconds, &loop, &QEventLoop::quit);
        loop.exec();
        before = std::exchange(now, window.grabWindow());
    }
    return now;
}

/// An object whose property "theme" is the one of this engine.
std::unique_ptr<QObject> themeOf(QQmlEngine& engine) {
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Selvane\nQtObject { readonly property QtObject theme: Theme }",
                      {});
    return std::unique_ptr<QObject>(component.create());
}

} // namespace

Scene::Scene(Home& home, const std::optional<QDir>& folder)
    : m_folder(folder), m_preferences(QString::fromStdString((home / "preferences.conf").string())),
      m_updates(nullptr), model(home.store, home.claude, bridge, m_preferences),
      launcher(m_engine, model, m_updates), m_theme(themeOf(m_engine)) {
    setTheme("reducedMotion", true); // nothing may move for ever
}

void Scene::take(LauncherApp::WindowName name, const QString& picture) {
    const QImage image = settled(*launcher.window(name));
    if (m_folder && !image.save(m_folder->filePath(picture + ".png")))
        qFatal("%s can't be written", qPrintable(picture));
}

void Scene::takeWith(LauncherApp::WindowName name, const QString& type, QVariantMap properties,
                     const QString& picture) {
    QQuickWindow* window = launcher.window(name);
    QQmlComponent component(qmlEngine(window));
    component.setData("import Selvane\n" + type.toUtf8() + " {}", {});
    properties["parent"] = QVariant::fromValue(window->contentItem());
    const std::unique_ptr<QObject> made(component.createWithInitialProperties(properties));
    if (!made)
        qFatal("%s", qPrintable(component.errorString()));
    take(name, picture);
}

} // namespace selvane::test
