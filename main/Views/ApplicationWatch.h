// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

#include "platform/Workspace.h"

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

/// `workspace` must live longer.
std::unique_ptr<ApplicationWatch> makeApplicationWatch(Workspace& workspace);

} // namespace selvane
