// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <memory>

namespace selvane {

class AppModel;

/// Reloads the application when something else changes what it shows: a command, Claude, another Selvane. It
/// watches the profiles' folders and, for the selected profile and its source, what the windows list of them.
/// Changes that follow each other closely lead to one reload, and so do those during a long action, at its
/// end.
class FolderWatch : public QObject {
    Q_OBJECT

public:
    struct Pace {
        std::chrono::milliseconds delay{100};  ///< one action often changes several files
        std::chrono::milliseconds apart{1000}; ///< between two reloads, for programs that never stop writing
    };

    /// Watches nothing until `start`. The application must outlive this object.
    explicit FolderWatch(AppModel& app) : FolderWatch(app, Pace()) {}
    FolderWatch(AppModel& app, Pace pace);

    void start();

private:
    void watchAnew();
    void follow();
    void notice();
    void look();
    QStringList places() const;

    AppModel& m_app;
    const Pace m_pace;
    std::unique_ptr<QFileSystemWatcher> m_watcher; ///< none before `start`
    QTimer m_delay;
    QElapsedTimer m_lastLook;
};

} // namespace selvane
