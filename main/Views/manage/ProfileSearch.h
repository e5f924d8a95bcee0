// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <vector>

#include "model/Profile.h"

namespace selvane {

/// A profile in a list, and the parts of its texts that were found: start and length of each.
struct ListedProfile {
    Profile profile;
    QList<int> inName;
    QList<int> inSummary;
};

/// The profiles that have all the words of a text, each at the beginning of a word of their name, their
/// description or their id; or, if there is none of these, anywhere in them. Those that have all of them in
/// their name come first, then those that have them in their name or description. Case and accents don't
/// matter. An empty text finds all of them.
std::vector<ListedProfile> foundProfiles(const std::vector<Profile>& profiles, const QString& text);

} // namespace selvane
