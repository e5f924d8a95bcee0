// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <vector>

#include "model/ProfileLook.h"
#include "platform/process/ApplicationEntries.h"

namespace selvane {

/// A profile's icon in one size: its leaf on the body of the application's icon, or, below 48 points, the
/// leaf alone. Null if there isn't enough memory.
QImage profilePicture(const ProfileLook& look, const IconSize& size);

/// In every size of `ApplicationEntries::iconSizes`. May be called on any thread. Throws `LauncherError` if a
/// picture can't be made.
std::vector<IconImage> profileIcon(const ProfileLook& look);

} // namespace selvane
