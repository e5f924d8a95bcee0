// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <optional>
#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/LookValue.h"
#include "AppModel/Reading.h"
#include "Views/manage/ConversationListModel.h"

namespace selvane {

/// The state of the sheet that asks in which profile a conversation is to go on. What that means is found out
/// on another thread.
class ContinuationForm : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app MEMBER m_app NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(
        selvane::ConversationListModel* conversations MEMBER m_conversations NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(
        int row MEMBER m_row NOTIFY inputChanged REQUIRED) ///< of the conversation, when the sheet opens
    Q_PROPERTY(QString title READ title NOTIFY inputChanged)
    Q_PROPERTY(selvane::LookValue look READ look NOTIFY inputChanged)
    Q_PROPERTY(QString facts READ facts NOTIFY inputChanged) ///< folder, profile and size
    /// The profiles to choose from, each with "name", "look", "note" and "isOpen". The conversation's own
    /// isn't among them.
    Q_PROPERTY(QVariantList targets READ targets NOTIFY targetsChanged)
    Q_PROPERTY(int target READ target WRITE setTarget NOTIFY planChanged) ///< position in these
    /// Of the chosen profile's account, each with "name", "shortId" and "note"; empty unless there are
    /// several and the conversation needs one.
    Q_PROPERTY(QVariantList organisations READ organisations NOTIFY organisationsChanged)
    Q_PROPERTY(QString organisationQuestion READ organisationQuestion NOTIFY organisationsChanged)
    Q_PROPERTY(int organisation READ organisation WRITE setOrganisation NOTIFY planChanged)
    Q_PROPERTY(QString when READ when NOTIFY planChanged) ///< sentences; empty until they are known
    Q_PROPERTY(QString copies READ copies NOTIFY planChanged)
    Q_PROPERTY(QString confirmText READ confirmText NOTIFY planChanged)
    Q_PROPERTY(bool canContinue READ canContinue NOTIFY planChanged)

public:
    using QObject::QObject;

    QString title() const;
    LookValue look() const;
    QString facts() const;
    QVariantList targets() const;
    int target() const { return m_target; }
    void setTarget(int position);
    QVariantList organisations() const;
    QString organisationQuestion() const;
    int organisation() const { return m_organisation; }
    void setOrganisation(int position);
    QString when() const;
    QString copies() const;
    QString confirmText() const;
    bool canContinue() const { return m_plan.has_value(); }

    void classBegin() override {}
    void componentComplete() override;

    Q_INVOKABLE void submit();

signals:
    void succeeded(); ///< the submitted work is done
    void inputChanged();
    void targetsChanged();
    void organisationsChanged();
    void planChanged();

private:
    struct Plan {
        Continuation what;
        std::vector<OrganisationFolder> organisations;
    };

    const Profile* chosen() const;
    const Profile* origin() const;
    std::optional<std::filesystem::path> folder() const;
    void setOrganisations(std::vector<OrganisationFolder> organisations);
    void plan();

    AppModel* m_app = nullptr;
    ConversationListModel* m_conversations = nullptr;
    int m_row = 0;
    std::shared_ptr<const ConversationList> m_list;
    const Conversation* m_conversation = nullptr; ///< in `m_list`; null if it has gone
    std::vector<Profile> m_targets;
    int m_target = 0;
    int m_organisation = 0;
    std::vector<OrganisationFolder> m_organisations;
    std::optional<Continuation> m_plan;
    Reading<std::optional<Plan>> m_reading;
};

} // namespace selvane
