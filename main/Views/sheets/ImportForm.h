// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>

#include "AppModel/AppModel.h"
#include "AppModel/Reading.h"
#include "Views/sheets/ChoiceListModel.h"

namespace selvane {

/// The state of the sheet that adds items of one component from another profile. It follows what other
/// programs change; ticks stay with their items.
class ImportForm : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app MEMBER m_app NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(QString target MEMBER m_target NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(QString component MEMBER m_component NOTIFY inputChanged REQUIRED) ///< raw value
    /// Id of the profile to take from; initially the first other profile.
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(bool links MEMBER m_links NOTIFY linksChanged) ///< link the items rather than copy them
    /// The items that the target doesn't have yet.
    Q_PROPERTY(selvane::ChoiceListModel* items READ items CONSTANT)
    Q_PROPERTY(QString heading READ heading NOTIFY inputChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)

public:
    using QObject::QObject;

    QString source() const { return m_source; }
    void setSource(const QString& id);
    ChoiceListModel* items() { return &m_items; }
    QString heading() const;
    bool isLoading() const { return m_isLoading; }

    void classBegin() override {}
    void componentComplete() override;

    /// Does nothing if no item is chosen. `succeeded` follows once all is there.
    Q_INVOKABLE void submit();

signals:
    void succeeded(); ///< the submitted work is done
    void inputChanged();
    void sourceChanged();
    void linksChanged();
    void isLoadingChanged();

private:
    void follow();
    void listItems();
    void setLoading(bool isLoading);

    AppModel* m_app = nullptr;
    QString m_target;
    QString m_component;
    QString m_source;
    bool m_links = true;
    bool m_isLoading = false;
    ChoiceListModel m_items;
    Reading<std::vector<ChoiceListModel::Entry>> m_reading;
};

} // namespace selvane
