// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// Which application opens links of a scheme, such as "claude", on this user's desktop. Applications are
/// known by the ids of their desktop entries, ".desktop" included. The first use starts a thread of the
/// system's that watches the folders with entries for good.
namespace selvane {

/// The id of the application; empty if there is none, or if the system can't tell.
std::string schemeHandler(const std::string& scheme);
/// Makes an application the default: that with this id, or with the desktop entry in this file (an absolute
/// path). Throws `LauncherError` if the entry isn't valid or the choice can't be saved; then it is as before.
void setSchemeHandler(const std::string& scheme, const std::string& entry);
/// Forgets the user's choice, so that the system's default counts again.
void resetSchemeHandler(const std::string& scheme);

} // namespace selvane
