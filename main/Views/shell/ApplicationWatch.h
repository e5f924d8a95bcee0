// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

#include "desktop/OpenCopies.h"

namespace selvane {

/// Tells that a copy of Claude Desktop was started or has ended, while it is asked to.
class ApplicationWatch : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void setWatching(bool watches) = 0;

signals:
    void changed();
};

/// `look` says which copies run. It may be called on any thread, one call at a time, until the application's
/// threads have ended.
std::unique_ptr<ApplicationWatch> makeApplicationWatch(std::function<std::vector<OpenCopy>()> look);

} // namespace selvane
