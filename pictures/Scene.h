// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QQmlEngine>
#include <QQuickItem>
#include <QVariantMap>

#include <memory>
#include <optional>

#include "AppModel/FakeBridge.h"
#include "Views/shell/LauncherApp.h"
#include "support/Home.h"

namespace selvane::test {

inline constexpr auto kPicker = LauncherApp::Picker;
inline constexpr auto kManage = LauncherApp::Manage;

/// The application with its windows for one home.
class Scene {
public:
    FakeBridge bridge;

    Scene(Home& home, const std::optional<QDir>& folder);

    void take(LauncherApp::WindowName name, const QString& picture);
    void setTheme(const char* property, const QVariant& value) {
        m_theme->property("theme").value<QObject*>()->setProperty(property, value);
    }
    void resize(LauncherApp::WindowName name, const QSize& size) { launcher.window(name)->resize(size); }

    /// Takes a picture with something open over a window.
    void takeWith(LauncherApp::WindowName name, const QString& type, QVariantMap properties,
                  const QString& picture);

private:
    std::optional<QDir> m_folder;
    Preferences m_preferences;
    Updates m_updates;
    QQmlEngine m_engine;

public:
    AppModel model;
    LauncherApp launcher;

private:
    const std::unique_ptr<QObject> m_theme;
};

/// The conversations, and the sheet in which one of them goes on, over the management window.
void takeConversations(Scene& scene);
/// A notice of something that can be taken back, and that it was.
void takeOffer(Scene& scene);
/// The picker, and what typing there finds.
void takePicker(Scene& scene);
/// The sheet that restores, with an archive of the profiles.
void takeRestore(Scene& scene);

} // namespace selvane::test
