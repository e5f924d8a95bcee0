// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <optional>
#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/Differences.h"
#include "AppModel/Reading.h"
#include "Views/manage/ItemListModel.h"

namespace selvane {

/// One component of the selected profile: a folder with its items, or a single file.
class ComponentModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by a ProfileDetailModel")

    Q_PROPERTY(QString component READ component CONSTANT) ///< raw value
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(bool isCollection READ isCollection CONSTANT)
    Q_PROPERTY(bool isFeminine READ isFeminine CONSTANT) ///< what an item of it is called in Italian

    /// How the profile takes it from its source; there is a choice only if it has a source.
    Q_PROPERTY(bool hasModes READ hasModes NOTIFY profileChanged)
    Q_PROPERTY(QList<QString> modes READ modes CONSTANT)
    Q_PROPERTY(QList<QString> modeExplanations READ modeExplanations CONSTANT)
    Q_PROPERTY(int modeIndex READ modeIndex NOTIFY profileChanged) ///< -1 for a mode that isn't allowed
    /// "sorgente" if the source is unknown.
    Q_PROPERTY(QString sourceName READ sourceName NOTIFY profileChanged)

    /// Whether its section shows more than its header; remembered from one start to the next.
    Q_PROPERTY(bool isOpen READ isOpen WRITE setOpen NOTIFY openChanged)

    // For a collection
    Q_PROPERTY(selvane::ItemListModel* items READ items CONSTANT)
    Q_PROPERTY(QString count READ count NOTIFY contentChanged)
    Q_PROPERTY(QString filterPrompt READ filterPrompt NOTIFY contentChanged) ///< such as "Filtra le 38 skill"

    // For a single file
    Q_PROPERTY(QString description READ description NOTIFY contentChanged)
    Q_PROPERTY(QString linkTarget READ linkTarget NOTIFY contentChanged) ///< ends the description of a link
    Q_PROPERTY(QString openLabel READ openLabel NOTIFY contentChanged)   ///< empty if it can't be opened
    Q_PROPERTY(bool canReimport READ canReimport NOTIFY profileChanged)

    // Items that no longer follow the source
    Q_PROPERTY(QString changed READ changed NOTIFY contentChanged) ///< how many; empty if there are none
    Q_PROPERTY(QString relinkQuestion READ relinkQuestion NOTIFY contentChanged)
    Q_PROPERTY(QString relinkConsequence READ relinkConsequence NOTIFY contentChanged)
    Q_PROPERTY(QString bringConsequence READ bringConsequence NOTIFY profileChanged)
    /// How much the item of the last `readDifference` differs from the source's. It is read again with the
    /// content, until `forgetDifference`.
    Q_PROPERTY(QString difference READ difference NOTIFY differenceChanged)
    Q_PROPERTY(QList<QString> differenceLines READ differenceLines NOTIFY differenceChanged)

public:
    /// What is on disk, read on another thread.
    struct Content {
        bool isRead = false;
        std::vector<ItemListModel::Entry> items;
        bool exists = false;
        std::optional<std::string> linkTarget;
        int serverCount = 0;
        std::vector<ChangedItem> changed;
        QString changedOn; ///< a day, of a changed file
    };

    ComponentModel(Component component, QObject* parent);

    /// Copies `profile`; null if none is selected. Forgets the content if it is another profile than before.
    void setProfile(AppModel* app, const Profile* profile);
    void setContent(Content content);
    static Content read(const ProfileStore& store, const Profile& profile,
                        const std::optional<Profile>& source, Component component);

    QString component() const;
    QString title() const;
    QString symbol() const;
    bool isCollection() const { return selvane::isCollection(m_component); }
    bool isFeminine() const { return areItemsFeminine(m_component); }
    bool hasModes() const { return m_profile && m_profile->meta.source; }
    QStringList modes() const;
    QStringList modeExplanations() const;
    int modeIndex() const;
    QString sourceName() const;
    ItemListModel* items() { return &m_items; }
    QString count() const;
    QString filterPrompt() const;
    bool isOpen() const;
    void setOpen(bool isOpen);
    QString description() const;
    QString linkTarget() const;
    QString openLabel() const;
    bool canReimport() const;
    QString changed() const;
    QString relinkQuestion() const;
    QString relinkConsequence() const;
    QString bringConsequence() const;
    QString difference() const;
    QStringList differenceLines() const { return m_difference.lines; }

public slots:
    void setMode(int index);
    void reveal();
    void open();
    /// Replaces the profile's component with the source's. `profileId` is the profile that the user was asked
    /// about: another one may have been selected from the picker since.
    void reimport(const QString& profileId);
    // Commands in an item's menu.
    void remove(int row);
    void makeOwn(int row);
    void revealItem(int row);
    // The same for a changed item; a single file has row -1.
    void readDifference(int row);
    void forgetDifference();
    bool compare(int row); ///< false if the desktop has no program for that
    void relink(int row);
    void bring(int row);
    void keepOwn(int row);
    /// Like `reimport`, about one profile.
    void relinkAll(const QString& profileId);

signals:
    void openChanged();
    void profileChanged();
    void contentChanged();
    void differenceChanged();

private:
    const ChangedItem* changedItem(int row) const;
    void readDifferenceAgain();
    std::filesystem::path place() const;

    const Component m_component;
    AppModel* m_app = nullptr;
    std::optional<Profile> m_profile;
    ItemListModel m_items;
    Content m_content;
    std::optional<ChangedItem> m_compared; ///< whose difference is followed
    Differences m_difference;
    Reading<Differences> m_differenceReading;
};

} // namespace selvane
