// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <memory>

#include "platform/process/Process.h"

namespace selvane {

class LauncherApp;

/// What the user is told without a display.
inline constexpr auto kNoDisplay =
    "Nessuno schermo disponibile: senza, Selvane si usa con i suoi comandi (selvane --help)";

/// Throws `LauncherError` if no windows can be shown here. Call it before anything else of Qt.
void requireDisplay();

/// Takes from `environment` what the desktop has given to this start alone, and returns what lets a window of
/// it come to the front; empty if it has given nothing.
QByteArray takeStartToken(Environment& environment);
/// Lets the next window that asks come to the front by the token of another start.
void useStartToken(const QByteArray& token);
/// Variables with which a program started now may come to the front; empty where the system has none.
Environment startVariables();

/// Whether copied text stays in the clipboard when the application has ended.
bool keepsClipboard();

/// Where this system keeps the user's preferences.
std::unique_ptr<QSettings> openSettings();

/// What the system adds around the windows, such as a menu bar. It lasts as long as the returned object;
/// `launcher` must outlive it.
std::unique_ptr<QObject> makeSystemShell(LauncherApp& launcher);

/// Whether Selvane can be what opens the links that end a sign-in.
bool canReceiveSignIns();

/// The names of this system's programs that show how two files or folders differ, the best first.
QStringList comparisonPrograms();

/// Shows the item selected in the file manager. Calls `failed`, perhaps later, if nothing can show it.
void revealItem(const std::filesystem::path& item, std::function<void()> failed);

} // namespace selvane
