// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

/// What a start of the windows can ask for, as its first argument, besides passing on a sign-in.
namespace selvane {

inline constexpr std::string_view kNewProfileRequest = "--new-profile";
inline constexpr std::string_view kManageRequest = "--manage";
/// Before a profile's id: to launch it as if it had been chosen in the picker.
inline constexpr std::string_view kLaunchRequest = "--launch=";
/// Before a message on one line: to show it as an error.
inline constexpr std::string_view kErrorRequest = "--error=";

} // namespace selvane
