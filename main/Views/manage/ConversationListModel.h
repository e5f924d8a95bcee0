// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QStringList>
#include <QTimer>

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/Reading.h"
#include "Views/manage/TextSearchRun.h"
#include "store/conversations/ConversationSearch.h"

namespace selvane {

/// The conversations of all profiles, those with the latest activity first, and which of them are wanted.
/// Reading them and searching their texts happen on other threads.
class ConversationListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// Whether they are to be read, and read again whenever files have changed.
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(int total READ total NOTIFY listChanged)      ///< of all; 0 before they are read
    Q_PROPERTY(int count READ count NOTIFY countChanged)     ///< of those that are wanted
    Q_PROPERTY(QString tally READ tally NOTIFY countChanged) ///< both in words; empty before they are read
    /// The choices of the filters; the first of each stands for all.
    Q_PROPERTY(QList<QString> profiles READ profiles NOTIFY listChanged)
    Q_PROPERTY(QList<QString> folders READ folders NOTIFY listChanged)
    Q_PROPERTY(QList<QString> periods READ periods CONSTANT)

    Q_PROPERTY(QString search MEMBER m_search WRITE setSearch NOTIFY filterChanged)
    Q_PROPERTY(int profile MEMBER m_profile NOTIFY filterChanged) ///< positions in the lists above
    Q_PROPERTY(int folder MEMBER m_folder NOTIFY filterChanged)
    Q_PROPERTY(int period MEMBER m_period NOTIFY filterChanged)
    Q_PROPERTY(bool fromApp MEMBER m_fromApp NOTIFY filterChanged)
    Q_PROPERTY(bool fromTerminal MEMBER m_fromTerminal NOTIFY filterChanged)
    /// Whether the rows are those whose texts say what is searched for, found so far.
    Q_PROPERTY(bool showsHits READ showsHits NOTIFY hitsChanged)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY hitsChanged) ///< and there may be more

public:
    enum Role {
        TitleRole = Qt::UserRole,
        IsGivenTitleRole,
        PlaceRole,    ///< the folder, with "~" for the home folder
        ProfilesRole, ///< names
        LookRole,     ///< of the profile where it has gone furthest
        IsTerminalRole,
        MarkRole, ///< what is special about it; empty if nothing is
        IsLostRole,
        ActivityRole,
        SizeRole,
        IdRole,
        SectionRole,
        IsFirstRole, ///< of its section
        IsLastRole,
        ExcerptRole,     ///< where its text says what is searched for
        DescriptionRole, ///< all of this in words
    };

    explicit ConversationListModel(QObject* parent = nullptr);
    ~ConversationListModel() override;

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    bool isShown() const { return m_isShown; }
    void setShown(bool shown);
    bool isLoading() const { return m_isLoading; }
    int total() const;
    int count() const { return static_cast<int>(m_rows.size()); }
    QString tally() const;
    QStringList profiles() const;
    QStringList folders() const;
    static QStringList periods();
    void setSearch(const QString& text);
    bool showsHits() const { return m_hits.has_value(); }
    bool isSearching() const { return m_run.isRunning(); }

    Q_INVOKABLE void refresh();
    Q_INVOKABLE void searchTexts(); ///< for `search`, among those that the other filters want
    Q_INVOKABLE void stopSearch();  ///< those found so far stay
    Q_INVOKABLE void copyCommand(int row);
    Q_INVOKABLE void show(int row);                  ///< in the file manager
    Q_INVOKABLE QString keyOf(int row) const;        ///< empty outside the list
    Q_INVOKABLE int rowOf(const QString& key) const; ///< -1 if it isn't among the rows

    const std::shared_ptr<const ConversationList>& list() const { return m_list; }
    const Conversation* conversation(int row) const; ///< null outside the list

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void appChanged();
    void shownChanged();
    void loadingChanged();
    void listChanged();
    void countChanged();
    void filterChanged();
    void hitsChanged();

private:
    ConversationFilter filter() const;
    QString sectionOf(int row) const;
    QString descriptionOf(const QModelIndex& index) const;
    QVariant edge(int row, int neighbour) const;
    void take(std::shared_ptr<const ConversationSearch> search);
    void applyFilter();
    void addHits();
    void setRows(std::vector<std::uint32_t> rows);

    AppModel* m_app = nullptr;
    bool m_isShown = false;
    bool m_isLoading = false;
    QString m_search;
    int m_profile = 0;
    int m_folder = 0;
    int m_period = 0;
    bool m_fromApp = true;
    bool m_fromTerminal = true;
    std::shared_ptr<const ConversationSearch> m_index;
    std::shared_ptr<const ConversationList> m_list;
    std::vector<std::string> m_folders;
    std::vector<std::uint32_t> m_rows;                      ///< positions in the list
    std::optional<std::map<std::uint32_t, QString>> m_hits; ///< excerpts of what the text search has found
    QTimer m_hitTimer;                                      ///< looks for more hits
    std::shared_ptr<Progress> m_progress;                   ///< of the newest reading
    TextSearchRun m_run;
    Reading<std::shared_ptr<const ConversationSearch>> m_reading;
};

} // namespace selvane
