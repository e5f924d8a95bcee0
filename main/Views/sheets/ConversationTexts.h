// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <filesystem>
#include <optional>
#include <string>

namespace selvane {

// How the windows tell of conversations. Times are in seconds since 1970, days in the local time zone.

QString conversationTally(int count, int total, int profiles);
/// The day or month that a last activity belongs to.
QString sectionTitle(std::optional<double> activity);
QString activityText(std::optional<double> activity);
/// A folder on one line, with "~" for the home folder.
QString shortFolder(const std::string& folder, const std::filesystem::path& home);
/// When a period of so many days that ends today has begun; 0 is today, 365 this year. Nothing if negative.
std::optional<double> periodBegin(int days);

} // namespace selvane
