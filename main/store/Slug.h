// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace selvane {

/// The folder name for a profile's display name: lower case without diacritics, everything but letters and
/// numbers turned into single dashes; "profilo" where nothing is left; never a name with a meaning of its
/// own.
std::string slug(std::string_view name);

} // namespace selvane
