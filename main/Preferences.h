// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>
#include <QString>

namespace selvane {

/// What the windows remember between two starts: one file in the user's configuration folder.
class Preferences {
public:
    /// `file` is made when something is first written.
    explicit Preferences(const QString& file) : m_settings(file, QSettings::IniFormat) {}

    bool closeAfterLaunch() const { return m_settings.value(kCloseAfterLaunch, true).toBool(); }
    void setCloseAfterLaunch(bool value) { m_settings.setValue(kCloseAfterLaunch, value); }

    QString lastSelection() const { return m_settings.value(kLastSelection, "default").toString(); }
    void setLastSelection(const QString& id) { m_settings.setValue(kLastSelection, id); }

private:
    static constexpr auto kCloseAfterLaunch = "closeAfterLaunch";
    static constexpr auto kLastSelection = "lastSelection";

    QSettings m_settings;
};

} // namespace selvane
