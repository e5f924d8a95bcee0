// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>

#include <array>
#include <memory>

#include "AppModel/AppModel.h"
#include "Views/shell/Updates.h"

namespace selvane {

/// The windowed application: its two windows, each created when first shown, and the commands that lead from
/// one to the other.
class LauncherApp : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the application itself")

    Q_PROPERTY(selvane::AppModel* app READ app CONSTANT)
    Q_PROPERTY(selvane::Updates* updates READ updates CONSTANT)
    /// The window that was active last; only this one shows notices, errors and questions.
    /// The largest size that a new window can have on the main screen.
    Q_PROPERTY(QSize room READ room CONSTANT)
    Q_PROPERTY(WindowName keyWindow READ keyWindow NOTIFY keyWindowChanged)

public:
    enum WindowName { Picker, Manage };
    Q_ENUM(WindowName)

    /// The arguments must outlive this object. `engine` creates the windows; the QML module must already be
    /// registered.
    LauncherApp(QQmlEngine& engine, AppModel& app, Updates& updates);
    ~LauncherApp() override;

    AppModel* app() const { return &m_app; }
    Updates* updates() const { return &m_updates; }
    QSize room() const;
    WindowName keyWindow() const { return m_keyWindow; }
    /// Opens the first window and follows the desktop's settings. Throws `LauncherError` if the window can't
    /// be created. `request` is as for `answerStart`.
    void start(const QByteArray& request = {});
    /// Null until it is first shown.
    QQuickWindow* window(WindowName name) const { return m_windows.at(name).get(); }

public slots:
    // These open a window or bring it to the front, showing what is on disk now.
    void showPicker() { tryToShow(Picker); }
    void showManage() { tryToShow(Manage); }
    /// Shows a window and does what starting Selvane with this argument asks for: one of the requests in
    /// `model/WindowRequests.h`, a link that ends a sign-in, or anything else. `token` lets the window come
    /// to the front, where that takes one.
    void answerStart(const QByteArray& request, const QByteArray& token = {});
    /// Asks for a path in the key window; `archiveChosen` follows.
    void askForArchive(const QString& proposedPlace, bool isThere);
    /// Asks in the key window whether the file there may be replaced; `replacementAnswered` follows.
    void askToReplace(const QString& place);

signals:
    /// "Nuovo profilo…" was chosen; the key window responds.
    void newProfile();
    void keyWindowChanged();
    /// The first frame of the first window has been shown.
    void begun();
    /// Whether any window is visible now.
    void shownChanged(bool isShown);
    /// As typed; empty if cancelled.
    void archiveChosen(const QString& place);
    void replacementAnswered(bool replaces);

private:
    void show(WindowName name);
    void offerNewProfile();
    WindowName answer(const std::string& request);
    void tryToShow(WindowName name);
    std::unique_ptr<QQuickWindow> makeWindow(WindowName name);
    QObject* makeLayer(const char* type, QVariantMap properties);
    void setKeyWindow(WindowName name);
    bool isShown() const;

    QQmlEngine& m_engine;
    AppModel& m_app;
    Updates& m_updates;
    std::array<std::unique_ptr<QQuickWindow>, 2> m_windows;
    WindowName m_keyWindow = Picker;
    bool m_wasLeft = false; ///< whether another application has been active since the last reload
};

/// Runs the windowed application until it ends and returns its exit status. A second start brings the first
/// one's picker to the front. With "--new-profile", the picker offers to create a profile at once. Throws
/// `LauncherError` if there is no display.
int runLauncherApp(int argc, char** argv);

} // namespace selvane
