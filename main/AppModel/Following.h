// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "AppModel/AppModel.h"

namespace selvane {

/// Makes `follower` follow another application (which may be none): its connections to the one before end,
/// and `connectTo(AppModel&)` makes the new ones. False, and nothing done, when `followed` is that
/// application already.
template <typename Connect>
bool follow(AppModel* application, AppModel*& followed, const QObject* follower, Connect connectTo) {
    if (followed == application)
        return false;
    if (followed != nullptr)
        followed->disconnect(follower);
    followed = application;
    if (application != nullptr)
        connectTo(*application);
    return true;
}

} // namespace selvane
