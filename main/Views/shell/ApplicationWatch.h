// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

#include "desktop/OpenCopies.h"

namespace selvane {

/// Reports when a copy of Claude Desktop has started or ended, while switched on.
class ApplicationWatch : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void setWatching(bool watches) = 0;
    /// For those who have looked themselves, perhaps at a copy that has ended since: if this watch looks at
    /// intervals, it reports after the next look, even without a change.
    virtual void lookAnew() {}

signals:
    void changed();
};

/// `look` returns the running copies. It may be called on any thread, one call at a time, until the
/// application's threads have ended.
std::unique_ptr<ApplicationWatch> makeApplicationWatch(std::function<std::vector<OpenCopy>()> look);

} // namespace selvane
