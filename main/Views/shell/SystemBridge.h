// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "AppModel/DesktopBridge.h"
#include "Views/shell/ApplicationWatch.h"
#include "Views/shell/SaveDialog.h"

namespace selvane {

/// The real desktop. Where it has no dialog for a new file, the windows are asked for one by signal.
class SystemBridge final : public DesktopBridge {
    Q_OBJECT

public:
    /// `look` says which copies of Claude Desktop run; see `makeApplicationWatch`.
    explicit SystemBridge(std::function<std::vector<OpenCopy>()> look);

    void endApplication() override;
    void copyToClipboard(const QString& text) override;
    void reveal(const std::filesystem::path& item) override;
    void open(const std::filesystem::path& file) override;
    void askForArchive(const QString& proposedName,
                       std::function<void(std::optional<std::filesystem::path>)> done) override;

    /// Whether to tell of started and ended copies of Claude Desktop: while a window is shown.
    void setWatching(bool watches) { m_watch->setWatching(watches); }
    /// The answer to `archiveWanted`: a path as typed, from the home folder on where it is relative; empty
    /// when the user has cancelled.
    void answerArchive(const QString& typed);

signals:
    void archiveWanted(const QString& proposedPlace);

private:
    void finishArchive(std::optional<std::filesystem::path> place);

    const std::unique_ptr<ApplicationWatch> m_watch;
    const std::unique_ptr<SaveDialog> m_saveDialog;
    QString m_proposedArchive;
    std::function<void(std::optional<std::filesystem::path>)> m_archiveDone;
};

} // namespace selvane
