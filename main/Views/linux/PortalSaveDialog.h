// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantMap>

#include "Views/shell/SaveDialog.h"

namespace selvane {

/// The save dialog of the desktop portal.
class PortalSaveDialog final : public SaveDialog {
    Q_OBJECT

public:
    using SaveDialog::SaveDialog;

    void ask(const QWindow* parent, const QString& title, const QString& folder,
             const QString& name) override;

private slots:
    void respond(uint response, const QVariantMap& results);

private:
    void forget();

    QString m_request; ///< path of the open request; empty if there is none
    int m_count = 0;
};

} // namespace selvane
