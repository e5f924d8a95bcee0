// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantMap>

#include <memory>

#include "Views/linux/WaylandWindow.h"
#include "Views/shell/SaveDialog.h"

namespace selvane {

/// The file dialogs of the desktop portal.
class PortalSaveDialog final : public SaveDialog {
    Q_OBJECT

public:
    using SaveDialog::SaveDialog;

    void ask(QWindow* parent, const QString& title, const QString& folder, const QString& name) override;
    void askForExisting(QWindow* parent, const QString& title, const QString& folder) override;

private slots:
    void respond(uint response, const QVariantMap& results);

private:
    void call(const QString& method, QWindow* parent, const QString& title, QVariantMap options);
    QString handleOf(QWindow* window);
    void giveUp();
    static void closeDialog(const QString& request);
    QString forget(); ///< returns the path of the request that was open

    QString m_request;                        ///< path of the open request; empty if there is none
    bool m_isAnnounced = false;               ///< whether the portal hasn't answered the call for it yet
    std::unique_ptr<ExportedWindow> m_parent; ///< while its dialog is open
    int m_count = 0;
};

} // namespace selvane
