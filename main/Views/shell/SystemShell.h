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

/// Where this system keeps the user's preferences.
std::unique_ptr<QSettings> openSettings();

/// What the system adds around the windows, such as a menu bar. It lasts as long as the returned object;
/// `launcher` must outlive it.
std::unique_ptr<QObject> makeSystemShell(LauncherApp& launcher);

/// Shows the item selected in the file manager.
void revealItem(const std::filesystem::path& item);

} // namespace selvane
