// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace selvane {

/// How a profile takes a component from its source profile.
enum class ShareMode { shared, separate, extend, none };

inline constexpr std::array kShareModes = {ShareMode::shared, ShareMode::separate, ShareMode::extend,
                                           ShareMode::none};

/// The name on disk and on the command line.
std::string_view rawValue(ShareMode mode);
std::optional<ShareMode> shareMode(std::string_view rawValue);

/// What the user sees, in Italian.
std::string_view label(ShareMode mode);
std::string_view help(ShareMode mode);

} // namespace selvane
