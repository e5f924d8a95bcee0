// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// What the list of conversations shows in its rows.

#include <algorithm>

#include "AppModel/LookValue.h"
#include "AppModel/QtText.h"
#include "Views/manage/ConversationListModel.h"
#include "Views/sheets/ConversationTexts.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

QString keyOfConversation(const Conversation& conversation) {
    if (!conversation.recordID.empty())
        return qtText(conversation.recordID);
    return conversation.cliSessionIDs.empty() ? QString() : qtText(conversation.cliSessionIDs.front());
}

QString markOf(const Conversation& conversation) {
    if (!conversation.hasTranscript())
        return ConversationListModel::tr("solo voce");
    if (conversation.isArchived())
        return ConversationListModel::tr("archiviata");
    return conversation.places.front().isInOtherOrganisation
               ? ConversationListModel::tr("altra organizzazione")
               : QString();
}

QString profileNames(const ConversationList& list, const Conversation& conversation) {
    QStringList names;
    for (const ConversationPlace& place : conversation.places)
        names.append(QString::fromStdString(list.profiles.at(place.profile).meta.name));
    return names.join(QStringLiteral(", "));
}

} // namespace

const Conversation* ConversationListModel::conversation(int row) const {
    return row >= 0 && row < count() ? &m_list->conversations.at(m_rows[static_cast<std::size_t>(row)])
                                     : nullptr;
}

QString ConversationListModel::keyOf(int row) const {
    const Conversation* const found = conversation(row);
    return found == nullptr ? QString() : keyOfConversation(*found);
}

int ConversationListModel::rowOf(const QString& key) const {
    const auto has = [&](std::uint32_t position) {
        return keyOfConversation(m_list->conversations[position]) == key;
    };
    const auto found = std::ranges::find_if(m_rows, has);
    return found == m_rows.end() || key.isEmpty() ? -1 : static_cast<int>(found - m_rows.begin());
}

QString ConversationListModel::sectionOf(int row) const {
    const Conversation* const found = conversation(row);
    return found == nullptr ? QString() : sectionTitle(found->lastActivity);
}

QVariant ConversationListModel::edge(int row, int neighbour) const {
    return conversation(neighbour) == nullptr || sectionOf(neighbour) != sectionOf(row);
}

int ConversationListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ConversationListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = index.row();
    const Conversation& shown = *conversation(row);
    switch (role) {
    case TitleRole:
        return qtText(text::singleLine(shown.title));
    case IsGivenTitleRole:
        return shown.hasGivenTitle;
    case PlaceRole:
        return shortFolder(shown.cwd, m_app->store().home());
    case ProfilesRole:
        return profileNames(*m_list, shown);
    case LookRole:
        return lookVariant(m_list->profiles.at(shown.places.front().profile).meta.look);
    case IsTerminalRole:
        return shown.origin == ConversationOrigin::terminal;
    case MarkRole:
        return markOf(shown);
    case IsLostRole:
        return !shown.hasTranscript();
    case ActivityRole:
        return activityText(shown.lastActivity);
    case SizeRole:
        return shown.hasTranscript() ? qtText(text::byteCount(shown.size())) : QStringLiteral("–");
    case IdRole:
        return keyOf(row).remove(QStringLiteral("local_")).left(8);
    case SectionRole:
        return sectionOf(row);
    case IsFirstRole:
        return edge(row, row - 1);
    case IsLastRole:
        return edge(row, row + 1);
    case ExcerptRole:
        return m_hits ? m_hits->at(m_rows[static_cast<std::size_t>(row)]) : QString();
    case DescriptionRole:
        return descriptionOf(index);
    default:
        return {};
    }
}

QString ConversationListModel::descriptionOf(const QModelIndex& index) const {
    const QString origin = data(index, IsTerminalRole).toBool() ? tr("terminale") : tr("app");
    QStringList parts = {data(index, TitleRole).toString(),
                         data(index, MarkRole).toString(),
                         origin,
                         data(index, PlaceRole).toString(),
                         data(index, ProfilesRole).toString(),
                         data(index, ActivityRole).toString(),
                         data(index, SizeRole).toString(),
                         data(index, ExcerptRole).toString()};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QHash<int, QByteArray> ConversationListModel::roleNames() const {
    return {{TitleRole, "title"},       {IsGivenTitleRole, "isGivenTitle"},
            {PlaceRole, "place"},       {ProfilesRole, "profiles"},
            {LookRole, "look"},         {IsTerminalRole, "isTerminal"},
            {MarkRole, "mark"},         {IsLostRole, "isLost"},
            {ActivityRole, "activity"}, {SizeRole, "size"},
            {IdRole, "shortId"},        {SectionRole, "section"},
            {IsFirstRole, "isFirst"},   {IsLastRole, "isLast"},
            {ExcerptRole, "excerpt"},   {DescriptionRole, "description"}};
}

} // namespace selvane
