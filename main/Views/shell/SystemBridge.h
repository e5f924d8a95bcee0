// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "AppModel/DesktopBridge.h"
#include "Views/shell/ApplicationWatch.h"
#include "Views/shell/SaveDialog.h"

namespace selvane {

/// The real desktop. If it has no save dialog, a signal asks the windows for one.
class SystemBridge final : public DesktopBridge {
    Q_OBJECT

public:
    /// `look` returns the running copies of Claude Desktop; see `makeApplicationWatch`.
    explicit SystemBridge(std::function<std::vector<OpenCopy>()> look);

    void endApplication() override;
    bool copyToClipboard(const QString& text) override;
    Environment startVariables() override;
    void reveal(const std::filesystem::path& item, std::function<void()> failed) override;
    void open(const std::filesystem::path& file, std::function<void()> failed) override;
    bool compare(const std::filesystem::path& first, const std::filesystem::path& second) override;
    std::filesystem::path program() const override;
    std::vector<IconImage> drawIcon(const ProfileLook& look) const override;
    bool canReceiveSignIns() const override;
    bool receivesSignIns() const override;
    void setReceivesSignIns(bool value) override;
    void askForArchive(const QString& proposedName,
                       std::function<void(std::optional<std::filesystem::path>)> done) override;
    void askForBackup(std::function<void(std::optional<std::filesystem::path>)> done) override;

    /// Whether to report copies of Claude Desktop that start or end: on while a window is shown.
    void setWatching(bool watches) { m_watch->setWatching(watches); }
    void lookForCopiesAnew() { m_watch->lookAnew(); }
    /// The answer to `archiveWanted`: a path as typed, relative to the home folder unless absolute; empty if
    /// the user cancelled. If a file is there already that would be replaced, `replacementWanted` follows.
    void answerArchive(const QString& typed);
    /// The answer to `replacementWanted`; if no, `archiveWanted` follows with the same place.
    void answerReplacement(bool replaces);

signals:
    void archiveWanted(const QString& proposedPlace, bool isThere); ///< to save one, or one that is there
    void replacementWanted(const QString& place);

private:
    void finishArchive(std::optional<std::filesystem::path> place);

    const std::unique_ptr<ApplicationWatch> m_watch;
    const std::unique_ptr<SaveDialog> m_saveDialog;
    QString m_proposedArchive;
    bool m_isThere = false; ///< whether an archive is asked for that is there
    QString m_replaced;     ///< the place that `replacementWanted` named
    std::function<void(std::optional<std::filesystem::path>)> m_archiveDone;
};

} // namespace selvane
