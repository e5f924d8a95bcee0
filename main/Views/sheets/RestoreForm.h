// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/Reading.h"
#include "Views/sheets/ChoiceListModel.h"

namespace selvane {

/// Chooses and checks an archive, and then is the state of the sheet that restores parts of it.
class RestoreForm : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(QString fileName READ fileName NOTIFY archiveChanged)
    Q_PROPERTY(QString facts READ facts NOTIFY archiveChanged) ///< date, size, how much was checked
    Q_PROPERTY(selvane::ChoiceListModel* parts READ parts CONSTANT)
    Q_PROPERTY(QStringList warnings READ warnings NOTIFY archiveChanged) ///< what isn't or won't be as it was
    /// How many of the chosen parts are there and will go to the Trash, in words; empty if none will.
    Q_PROPERTY(QString trashed READ trashed NOTIFY chosenChanged)
    /// Whether Claude is using one of the chosen parts.
    Q_PROPERTY(bool claudeRuns READ claudeRuns NOTIFY chosenChanged)
    Q_PROPERTY(bool canRestore READ canRestore NOTIFY chosenChanged)

public:
    explicit RestoreForm(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    QString fileName() const;
    QString facts() const;
    ChoiceListModel* parts() { return &m_parts; }
    QStringList warnings() const;
    QString trashed() const;
    bool claudeRuns() const { return m_claudeRuns; }
    bool canRestore() const { return m_parts.chosenCount() > 0 && !m_claudeRuns; }

    Q_INVOKABLE void choose();  ///< asks for an archive; `checked` follows if it is one of Selvane's
    Q_INVOKABLE void tryOnly(); ///< changes nothing; a notice tells what would happen
    Q_INVOKABLE void submit();
    Q_INVOKABLE void lookForClaude(); ///< finds out again whether it runs, in the background

signals:
    void checked();
    void succeeded(); ///< the submitted work is done
    void appChanged();
    void archiveChanged();
    void chosenChanged();

private:
    void take(CheckedArchive archive);
    std::vector<RestorePart> chosen() const;

    AppModel* m_app = nullptr;
    CheckedArchive m_archive;
    ChoiceListModel m_parts;
    bool m_claudeRuns = false;
    Reading<bool> m_reading;
};

} // namespace selvane
