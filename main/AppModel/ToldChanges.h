// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <map>
#include <mutex>
#include <set>
#include <string>
#include <utility>

#include "store/ProfileStore.h"

namespace selvane {

/// Which changed items the user has been told of since the start. It may be asked on any thread.
class ToldChanges {
public:
    /// The sentence about those of the profile's changed items that weren't told yet; empty if there are
    /// none.
    QString news(const ProfileStore& store, const Profile& profile);

private:
    std::mutex m_mutex;
    std::map<std::string, std::set<std::pair<Component, std::string>>> m_told; ///< by the profile's id
};

} // namespace selvane
