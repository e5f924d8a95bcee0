// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "model/Profile.h"

namespace selvane {

/// The text of a settings file (JSON) with the paths into the folder of `from` changed to that of `to`.
/// Nothing else in it changes.
std::string withRewrittenPaths(std::string_view text, const Profile& from, const Profile& to);

} // namespace selvane
