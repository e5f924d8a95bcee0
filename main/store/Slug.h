// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace selvane {

/// The folder name for a profile's display name: lower case without diacritics, with a single dash for
/// anything but letters and numbers; "profilo" if nothing is left. Never a reserved name.
std::string slug(std::string_view name);

} // namespace selvane
