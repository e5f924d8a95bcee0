// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QFutureWatcher>
#include <QTimer>
#include <QtConcurrent>

#include <optional>

#include "Views/shell/ApplicationWatch.h"

namespace selvane {
namespace {

constexpr int kFirstLookMilliseconds = 200; // after the window is shown
constexpr int kLookMilliseconds = 2000;

using Copies = std::vector<OpenCopy>;

/// Checks the processes at intervals, on another thread.
class ProcessWatch final : public ApplicationWatch {
public:
    explicit ProcessWatch(std::function<Copies()> look) : m_look(std::move(look)) {
        m_timer.setInterval(kLookMilliseconds);
        connect(&m_timer, &QTimer::timeout, this, &ProcessWatch::look);
        connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] { take(m_watcher.result()); });
    }

    void setWatching(bool watches) override {
        if (!watches) {
            m_timer.stop();
            return;
        }
        if (m_timer.isActive())
            return;
        m_timer.start();
        QTimer::singleShot(kFirstLookMilliseconds, this, &ProcessWatch::look);
    }

    void lookAnew() override { m_copies.reset(); }

private:
    void look() {
        if (!m_watcher.isRunning())
            m_watcher.setFuture(QtConcurrent::run(m_look));
    }

    void take(Copies copies) {
        if (copies == m_copies)
            return;
        m_copies = std::move(copies);
        emit changed();
    }

    const std::function<Copies()> m_look;
    QTimer m_timer;
    QFutureWatcher<Copies> m_watcher;
    std::optional<Copies> m_copies; ///< those reported last; nothing before
};

} // namespace

std::unique_ptr<ApplicationWatch> makeApplicationWatch(std::function<Copies()> look) {
    return std::make_unique<ProcessWatch>(std::move(look));
}

} // namespace selvane
