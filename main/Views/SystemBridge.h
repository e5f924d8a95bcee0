// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <vector>

#include "DesktopBridge.h"
#include "desktop/ClaudeApp.h"

namespace selvane {

/// The real desktop. The save dialog is asked for by signal, because it is one of the windows' own views.
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
    /// The answer to `archiveWanted`; an empty place when the user has cancelled.
    Q_INVOKABLE void answerArchive(const QUrl& place);

signals:
    void archiveWanted(const QUrl& folder, const QString& name);

private:
    void look();

    const ClaudeApp& m_claude;
    QTimer m_timer;
    std::vector<RunningApplication> m_copies;
    std::function<void(std::optional<std::filesystem::path>)> m_archiveDone;
};

} // namespace selvane
