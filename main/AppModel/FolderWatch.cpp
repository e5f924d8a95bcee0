// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/FolderWatch.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <filesystem>

#include "AppModel/AppModel.h"

namespace selvane {
namespace {

QString decoded(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

} // namespace

FolderWatch::FolderWatch(AppModel& app, Pace pace) : m_app(app), m_pace(pace) {
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &FolderWatch::look);
}

void FolderWatch::start() {
    if (m_watcher)
        return;
    watchAnew();
    connect(&m_app, &AppModel::reloaded, this, &FolderWatch::follow);
    connect(&m_app, &AppModel::selectionChanged, this, &FolderWatch::follow);
}

/// A watcher stays with the folder that had a name when it was given, even if another one has it now.
void FolderWatch::watchAnew() {
    m_watcher = std::make_unique<QFileSystemWatcher>();
    m_watcher->addPaths(places());
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &FolderWatch::notice);
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, &FolderWatch::notice);
}

void FolderWatch::follow() {
    const QStringList wanted = places();
    const QStringList watched = m_watcher->directories() + m_watcher->files();
    const auto without = [](QStringList some, const QStringList& others) {
        const QSet<QString> known(others.begin(), others.end());
        some.removeIf([&](const QString& path) { return known.contains(path); });
        return some;
    };
    if (const QStringList gone = without(watched, wanted); !gone.isEmpty())
        m_watcher->removePaths(gone);
    if (const QStringList added = without(wanted, watched); !added.isEmpty())
        m_watcher->addPaths(added);
}

void FolderWatch::notice() {
    if (m_delay.isActive())
        return;
    const std::chrono::milliseconds since =
        m_lastLook.isValid() ? std::chrono::milliseconds(m_lastLook.elapsed()) : m_pace.apart;
    m_delay.start(std::max(m_pace.delay, m_pace.apart - since));
}

void FolderWatch::look() {
    if (!m_app.busyMessage().isEmpty()) {
        connect(&m_app, &AppModel::busyMessageChanged, this, &FolderWatch::notice,
                Qt::ConnectionType(Qt::UniqueConnection | Qt::SingleShotConnection));
        return;
    }
    m_lastLook.start();
    watchAnew();
    m_app.reload();
}

QStringList FolderWatch::places() const {
    const ProfileStore& store = m_app.store();
    QStringList result;
    const auto add = [&](const std::vector<std::filesystem::path>& paths) {
        for (const auto& path : paths) {
            // The watcher complains about what isn't there.
            if (std::error_code failure; std::filesystem::exists(path, failure))
                result += decoded(path);
        }
    };
    add(store.recordPlaces());
    if (const Profile* selected = m_app.selected()) {
        add(store.listedPlaces(*selected));
        const auto& source = selected->meta.source;
        if (const Profile* from = source ? m_app.profile(QString::fromStdString(*source)) : nullptr)
            add(store.listedPlaces(*from));
    }
    result.removeDuplicates();
    return result;
}

} // namespace selvane
