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

/// The windowed application: its two windows, each made when it is first shown, and the commands that lead
/// from one to the other.
class LauncherApp : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the application itself")

    Q_PROPERTY(selvane::AppModel* app READ app CONSTANT)
    Q_PROPERTY(selvane::Updates* updates READ updates CONSTANT)
    /// The window that was active last, which alone shows notices, errors and questions.
    Q_PROPERTY(WindowName keyWindow READ keyWindow NOTIFY keyWindowChanged)

public:
    enum WindowName { Picker, Manage };
    Q_ENUM(WindowName)

    /// What it is given must live longer. `engine` makes the windows; the QML module must be known by now.
    LauncherApp(QQmlEngine& engine, AppModel& app, Updates& updates);
    ~LauncherApp() override;

    AppModel* app() const { return &m_app; }
    Updates* updates() const { return &m_updates; }
    WindowName keyWindow() const { return m_keyWindow; }
    /// Opens the picker and follows the desktop's settings. Throws `LauncherError` when it can't be made.
    /// `request` is what `answerStart` takes.
    void start(const QByteArray& request = {});
    /// Null until it is first shown.
    QQuickWindow* window(WindowName name) const { return m_windows.at(name).get(); }

public slots:
    // Open a window or bring it to the front, with what is on disk now.
    void showPicker() { tryToShow(Picker); }
    void showManage() { tryToShow(Manage); }
    /// Does what a start of Selvane with this argument asks for: "--new-profile", or anything else.
    void answerStart(const QByteArray& request);
    /// Asks in the key window for a place; `archiveChosen` follows.
    void askForArchive(const QString& proposedPlace);

signals:
    /// "Nuovo profilo…" was chosen: the key window answers it.
    void newProfile();
    void keyWindowChanged();
    /// The picker's first frame has been shown.
    void begun();
    /// Whether any window can be seen now.
    void shownChanged(bool isShown);
    /// As typed; empty when the question was cancelled.
    void archiveChosen(const QString& place);

private:
    void show(WindowName name);
    void offerNewProfile();
    void tryToShow(WindowName name);
    std::unique_ptr<QQuickWindow> makeWindow(WindowName name);
    void setKeyWindow(WindowName name);
    bool isShown() const;

    QQmlEngine& m_engine;
    AppModel& m_app;
    Updates& m_updates;
    std::array<std::unique_ptr<QQuickWindow>, 2> m_windows;
    WindowName m_keyWindow = Picker;
    bool m_wasLeft = false; ///< another application has been in front since the last look
};

/// Runs the windowed application to its end and returns its exit status. A second start brings the first
/// one's picker to the front. With "--new-profile" the picker asks for a new profile at once. Throws
/// `LauncherError` when there is no display.
int runLauncherApp(int argc, char** argv);

} // namespace selvane
