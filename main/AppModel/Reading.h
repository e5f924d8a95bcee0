// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QSemaphore>
#include <QThreadPool>
#include <QtConcurrent>

#include <functional>
#include <memory>

namespace selvane {

/// Reads what a sheet shows on another thread, the newest request only. What is there within a moment is
/// passed on at once, so that views don't flicker. Its destructor waits for readings that have begun, as they
/// use the application's store.
template <typename Result>
class Reading {
public:
    Reading() {
        QObject::connect(&m_watcher, &QFutureWatcherBase::finished, &m_watcher, [this] {
            if (!m_watcher.isCanceled())
                m_done(m_watcher.future().takeResult());
        });
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    /// `read` takes values along and must not throw. `done` is called on this thread, now or later.
    void begin(std::function<Result()> read, std::function<void(Result)> done) {
        constexpr int kMoment = 15; // milliseconds
        const auto isRead = std::make_shared<QSemaphore>();
        auto future = QtConcurrent::run(&m_readers, [read = std::move(read), isRead] {
            Result result = read();
            isRead->release();
            return result;
        });
        m_watcher.setFuture({}); // drop what was asked for before
        if (isRead->tryAcquire(1, kMoment)) {
            done(future.takeResult());
            return;
        }
        m_done = std::move(done);
        m_watcher.setFuture(future);
    }
    bool isRunning() const { return m_watcher.isRunning(); }

private:
    std::function<void(Result)> m_done;
    QFutureWatcher<Result> m_watcher;
    QThreadPool m_readers;
};

} // namespace selvane
