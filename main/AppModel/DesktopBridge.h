// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "model/ProfileLook.h"
#include "platform/process/ApplicationEntries.h"
#include "platform/process/Process.h"

namespace selvane {

/// What the windows need from the desktop apart from running Claude Desktop.
class DesktopBridge : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void endApplication() = 0;
    /// Returns whether the text stays there when the application has ended.
    virtual bool copyToClipboard(const QString& text) = 0;
    /// Variables with which a program started now may come to the front; empty where the desktop has none.
    virtual Environment startVariables() = 0;
    /// Shows the item selected in the file manager. Calls `failed`, perhaps later, if there is none.
    virtual void reveal(const std::filesystem::path& item, std::function<void()> failed) = 0;
    /// Opens a file with its default application. Calls `failed`, perhaps later, if there is none.
    virtual void open(const std::filesystem::path& file, std::function<void()> failed) = 0;
    /// Opens two files or folders in a program that shows their differences. False if there is none.
    virtual bool compare(const std::filesystem::path& first, const std::filesystem::path& second) = 0;
    /// Asks where to save a zip archive; `done` gets nothing if the user cancels. Doesn't block.
    virtual void askForArchive(const QString& proposedName,
                               std::function<void(std::optional<std::filesystem::path>)> done) = 0;

    // For the profiles' entries among the desktop's applications. Both may be called on any thread.
    /// The program that is running: an absolute path.
    virtual std::filesystem::path program() const = 0;
    /// See `ProfileEntries::Draw`.
    virtual std::vector<IconImage> drawIcon(const ProfileLook& look) const = 0;

    // The links with which the browser ends a sign-in (see `SignInHandler`).
    virtual bool canReceiveSignIns() const = 0; ///< whether this system lets Selvane have them
    virtual bool receivesSignIns() const = 0;
    /// Throws if it can't be changed.
    virtual void setReceivesSignIns(bool value) = 0;

    /// Asks for a zip archive that is there; `done` gets nothing if the user cancels. Doesn't block.
    virtual void askForBackup(std::function<void(std::optional<std::filesystem::path>)> done) = 0;

signals:
    /// A copy of Claude Desktop has started or ended.
    void claudeCopiesChanged();
};

} // namespace selvane
