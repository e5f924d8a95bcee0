// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <vector>

#include "DesktopBridge.h"
#include "Views/PortalSaveDialog.h"
#include "desktop/ClaudeApp.h"

namespace selvane {

/// The real desktop. Where it has no dialog for a new file, the windows are asked for one by signal.
class SystemBridge final : public DesktopBridge {
    Q_OBJECT

public:
    explicit SystemBridge(const ClaudeApp& claude);

    void endApplication() override;
    void copyToClipboard(const QString& text) override;
    void reveal(const std::filesystem::path& item) override;
    void open(const std::filesystem::path& file) override;
    void askForArchive(const QString& proposedName,
                       std::function<void(std::optional<std::filesystem::path>)> done) override;

    /// Looks for started and ended copies of Claude Desktop from time to time, while a window is shown.
    void setWatching(bool watches);
    /// The answer to `archiveWanted`: a path as typed, from the home folder on where it is relative; empty
    /// when the user has cancelled.
    void answerArchive(const QString& typed);

signals:
    void archiveWanted(const QString& proposedPlace);

private:
    void look();
    void finishArchive(std::optional<std::filesystem::path> place);

    const ClaudeApp& m_claude;
    QTimer m_timer;
    std::optional<std::vector<RunningApplication>> m_copies; ///< none before the first look
    PortalSaveDialog m_saveDialog;
    QString m_proposedArchive;
    std::function<void(std::optional<std::filesystem::path>)> m_archiveDone;
};

} // namespace selvane
