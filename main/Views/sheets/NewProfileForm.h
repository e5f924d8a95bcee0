// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/LookValue.h"
#include "AppModel/Reading.h"
#include "Views/sheets/ChoiceListModel.h"

namespace selvane {

/// The state of the sheet that creates a profile. As a list, its rows are the components with their share
/// modes; it is empty unless a source is chosen.
class NewProfileForm : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged)
    Q_PROPERTY(QString summary MEMBER m_summary NOTIFY summaryChanged)
    Q_PROPERTY(selvane::LookValue look MEMBER m_look NOTIFY lookChanged)
    /// Id of the profile to start from; empty for none. Becomes empty if that profile is deleted. Modes that
    /// were chosen stay with another source, and so do items that were left out, by their names.
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(QString sourceName READ sourceName NOTIFY sourceChanged)
    Q_PROPERTY(bool sharesAccount MEMBER m_sharesAccount NOTIFY sharesAccountChanged)
    Q_PROPERTY(bool copiesSessions MEMBER m_copiesSessions NOTIFY copiesSessionsChanged)
    /// Until the user has chosen, on where it makes a difference.
    Q_PROPERTY(bool isIsolated READ isIsolated WRITE setIsolated NOTIFY isIsolatedChanged)
    Q_PROPERTY(QString builtInName READ builtInName NOTIFY appChanged)
    Q_PROPERTY(bool canCreate READ canCreate NOTIFY canCreateChanged)

public:
    enum Role {
        TitleRole = Qt::UserRole,
        SymbolRole,
        ModeLabelsRole, ///< of the modes that the component allows
        ModeExplanationsRole,
        ModeIndexRole,
        ItemsRole, ///< a ChoiceListModel, or null unless it is a folder
    };

    explicit NewProfileForm(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    QString source() const { return m_source; }
    void setSource(const QString& id);
    QString sourceName() const;
    bool isIsolated() const { return m_isolated.value_or(m_isolationMatters); }
    void setIsolated(bool isolated);
    QString builtInName() const { return m_app == nullptr ? QString() : m_app->builtInName(); }
    /// Not without a name, nor before the items of the source are known.
    bool canCreate() const { return !m_name.trimmed().isEmpty() && !m_reading.isRunning(); }

    Q_INVOKABLE void setMode(int row, int modeIndex);
    // Sets this mode for every component that allows it, and the nearest one for the others.
    Q_INVOKABLE void shareAll() { setAll(ShareMode::shared); }
    Q_INVOKABLE void separateAll() { setAll(ShareMode::separate); }
    /// Passes the request to the application; `succeeded` follows once the profile is there. Does nothing if
    /// `canCreate` is false.
    Q_INVOKABLE void create();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void succeeded(); ///< the profile is there
    void appChanged();
    void nameChanged();
    void canCreateChanged();
    void summaryChanged();
    void lookChanged();
    void sourceChanged();
    void sharesAccountChanged();
    void copiesSessionsChanged();
    void isIsolatedChanged();

private:
    struct Row {
        Component component;
        ShareMode mode;
        std::unique_ptr<ChoiceListModel> items; ///< only for a collection
    };

    using Items = std::map<Component, std::vector<ComponentItem>>;

    void listComponents();
    void listItems(const Items& items);
    void rememberChoices();
    void setAll(ShareMode mode);
    void readIsolation();
    ProfileRequest request() const;

    AppModel* m_app = nullptr;
    QString m_name;
    QString m_summary;
    LookValue m_look = ProfileLook{.symbol = "briefcase", .color = {}};
    QString m_source;
    bool m_sharesAccount = true;
    bool m_copiesSessions = false;
    std::optional<bool> m_isolated; ///< as the user has chosen
    bool m_isolationMatters = false;
    std::vector<Row> m_rows;
    Reading<Items> m_reading;
    Reading<bool> m_isolation;
    // What the user has chosen so far. It applies to every source that has the like.
    std::map<Component, ShareMode> m_modes;
    std::map<Component, std::set<std::string>> m_leftOut; ///< names of items
};

} // namespace selvane
