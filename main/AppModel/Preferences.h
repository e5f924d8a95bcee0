// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>

namespace selvane {

/// What the windows remember from one start to the next.
class Preferences {
public:
    explicit Preferences(std::unique_ptr<QSettings> settings) : m_settings(std::move(settings)) {}
    /// Stored in a file, which is created by the first write.
    explicit Preferences(const QString& file)
        : Preferences(std::make_unique<QSettings>(file, QSettings::IniFormat)) {}

    bool closeAfterLaunch() const { return m_settings->value(kCloseAfterLaunch, true).toBool(); }
    void setCloseAfterLaunch(bool value) { m_settings->setValue(kCloseAfterLaunch, value); }

    bool recentFirst() const { return m_settings->value(kRecentFirst, false).toBool(); }
    void setRecentFirst(bool value) { m_settings->setValue(kRecentFirst, value); }

    QString lastSelection() const { return m_settings->value(kLastSelection, "default").toString(); }
    void setLastSelection(const QString& id) { m_settings->setValue(kLastSelection, id); }

    bool signInsOffered() const { return m_settings->value(kSignInsOffered, false).toBool(); }
    void setSignInsOffered() { m_settings->setValue(kSignInsOffered, true); }

    /// Where a window was, without its frame, when it was last closed; empty if it never was.
    QRect windowPlace(const QString& window) const { return m_settings->value(window + "Place").toRect(); }
    void setWindowPlace(const QString& window, const QRect& place) {
        m_settings->setValue(window + "Place", place);
    }

    /// Whether a section of the management window, known by its component's raw value, is folded away.
    bool isFolded(const QString& section) const { return folded().contains(section); }
    void setFolded(const QString& section, bool isFolded) {
        QStringList sections = folded();
        sections.removeAll(section);
        if (isFolded)
            sections.append(section);
        m_settings->setValue(kFoldedSections, sections);
    }

private:
    QStringList folded() const { return m_settings->value(kFoldedSections).toStringList(); }

    static constexpr auto kCloseAfterLaunch = "closeAfterLaunch";
    static constexpr auto kFoldedSections = "foldedSections";
    static constexpr auto kRecentFirst = "recentFirst";
    static constexpr auto kLastSelection = "lastSelection";
    static constexpr auto kSignInsOffered = "signInsOffered";

    std::unique_ptr<QSettings> m_settings;
};

} // namespace selvane
