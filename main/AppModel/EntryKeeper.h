// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <map>

#include "AppModel/DesktopBridge.h"
#include "desktop/ProfileEntries.h"

namespace selvane {

class AppModel;

/// The profiles' entries among the desktop's applications, as the menus show and change them. Whenever the
/// profiles are reloaded, it has the entries corrected, on another thread.
class EntryKeeper : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

    /// The ids of the profiles that have an entry; empty until the first look, which `start` begins.
    Q_PROPERTY(QStringList ids READ ids NOTIFY idsChanged)

public:
    /// The arguments must outlive this object.
    EntryKeeper(AppModel& app, const ProfileEntries& entries, const DesktopBridge& desktop);
    ~EntryKeeper() override;

    QStringList ids() const { return m_ids; }
    Q_INVOKABLE void add(const QString& id);
    Q_INVOKABLE void remove(const QString& id);
    void start();

signals:
    void idsChanged();

private:
    using MadeAt = std::map<std::filesystem::path, Timestamp>; ///< by a profile's folder
    struct Outcome {
        QStringList ids;
        MadeAt known;
        MadeAt gone;
    };

    void refresh();
    Outcome refreshed(const std::vector<Profile>& profiles, const MadeAt& known, MadeAt gone,
                      const std::filesystem::path& root) const;
    void take(const Outcome& outcome);
    ProfileEntries::Draw draw() const;

    AppModel& m_app;
    const ProfileEntries& m_entries;
    const DesktopBridge& m_desktop;
    QStringList m_ids;
    MadeAt m_known; ///< the profiles at the last look
    /// Those that were removed with their entry. One that comes back, because the user has taken that back,
    /// gets its entry again; a new one in the same folder doesn't.
    MadeAt m_gone;
    bool m_isLooking = false;
    bool m_looksAgain = false; ///< something has been reloaded meanwhile
    QFuture<void> m_look;
};

} // namespace selvane
