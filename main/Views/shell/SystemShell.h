// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSettings>
#include <QString>

#include <filesystem>
#include <memory>

namespace selvane {

class LauncherApp;

/// Whether windows can be shown at all.
bool hasDisplay();

/// Where this system keeps what the user prefers.
std::unique_ptr<QSettings> openSettings();

/// What the system has around the windows, such as a menu bar. Lasts as long as the object; `launcher` must
/// live longer.
std::unique_ptr<QObject> makeSystemShell(LauncherApp& launcher);

/// Shows the item selected in the file manager.
void revealItem(const std::filesystem::path& item);

} // namespace selvane
