// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFutureWatcher>
#include <QString>
#include <QtConcurrent>

#include <functional>
#include <optional>
#include <utility>

#include "AppModel/Wording.h"

namespace selvane {

/// The outcome of work on another thread: nothing, or the sentence that says why it failed.
using Failure = std::optional<QString>;

inline Failure failureOf(const std::function<void()>& work) {
    try {
        work();
        return std::nullopt;
    } catch (const std::exception& error) {
        return explained(error);
    }
}

/// Runs `work` on another thread and passes its result to `done` on this one, unless `owner` is gone by then.
template <typename Work, typename Done>
QFuture<void> runInBackground(QObject* owner, Work work, Done done) {
    auto future = QtConcurrent::run(std::move(work));
    auto* watcher = new QFutureWatcher<decltype(future.result())>(owner);
    QObject::connect(watcher, &QFutureWatcherBase::finished, owner, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        done(watcher->result());
    });
    watcher->setFuture(future);
    return QFuture<void>(future);
}

} // namespace selvane
