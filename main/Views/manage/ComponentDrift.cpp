// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// What is told and done about items that no longer follow the source.

#include <algorithm>
#include <utility>

#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "Views/manage/ComponentModel.h"

namespace selvane {

/// The changed item in a row; that of a single file has none.
const ChangedItem* ComponentModel::changedItem(int row) const {
    const ComponentItem* item = m_items.item(row);
    if (isCollection() && item == nullptr)
        return nullptr;
    const auto found = std::ranges::find_if(m_content.changed, [&](const ChangedItem& changed) {
        return item == nullptr || changed.name == item->name;
    });
    return found == m_content.changed.end() ? nullptr : &*found;
}

QString ComponentModel::changed() const {
    const auto count = static_cast<qsizetype>(m_content.changed.size());
    if (count == 0)
        return {};
    if (!isCollection())
        return tr("modificato qui");
    return isFeminine() ? counted(count, tr("1 modificata"), tr("%1 modificate"))
                        : counted(count, tr("1 modificato"), tr("%1 modificati"));
}

QString ComponentModel::relinkQuestion() const {
    return isCollection() ? tr("Riprendere gli elementi di «%1»?").arg(sourceName())
                          : tr("Riprendere il file di «%1»?").arg(sourceName());
}

QString ComponentModel::relinkConsequence() const {
    const auto count = static_cast<qsizetype>(m_content.changed.size());
    return isCollection() ? counted(count, tr("1 elemento modificato qui andrà nel Cestino."),
                                    tr("%1 elementi modificati qui andranno nel Cestino."))
                          : tr("Quello modificato qui andrà nel Cestino.");
}

/// Who else gets what is brought to the source.
QString ComponentModel::bringConsequence() const {
    if (!m_profile)
        return {};
    const auto sharesIt = [this](const Profile& other) {
        return other.id != m_profile->id && other.meta.source == m_profile->meta.source &&
               other.mode(m_component) == ShareMode::shared;
    };
    const auto others = std::ranges::count_if(m_app->profiles(), sharesIt);
    if (others == 0)
        return tr("La versione di «%1» va nel Cestino").arg(sourceName());
    return counted(others, tr("Vale anche per l'altro profilo unificato"),
                   tr("Vale anche per gli altri %1 profili unificati"));
}

QString ComponentModel::difference() const {
    return m_difference.summary();
}

void ComponentModel::readDifference(int row) {
    m_difference = {};
    emit differenceChanged();
    const ChangedItem* item = changedItem(row);
    m_compared = item == nullptr ? std::nullopt : std::optional(*item);
    readDifferenceAgain();
}

void ComponentModel::readDifferenceAgain() {
    if (m_compared)
        m_differenceReading.begin([item = *m_compared] { return differencesBetween(item.source, item.own); },
                                  [this](Differences found) {
                                      if (found == m_difference)
                                          return;
                                      m_difference = std::move(found);
                                      emit differenceChanged();
                                  });
}

void ComponentModel::forgetDifference() {
    m_compared.reset();
}

bool ComponentModel::compare(int row) {
    const ChangedItem* item = changedItem(row);
    return item == nullptr || m_app->compare(item->source, item->own);
}

void ComponentModel::relink(int row) {
    if (const ChangedItem* item = changedItem(row))
        m_app->performSoon(
            tr("Collegamento di «%1»…").arg(qtText(item->name)),
            [item = *item, profile = *m_profile,
             notice = tr("Ripreso da «%1»").arg(sourceName())](ProfileStore& store) {
                store.relink(item, profile);
                return notice;
            },
            tr("«%1» rimesso com'era").arg(qtText(item->name)));
}

void ComponentModel::bring(int row) {
    if (const ChangedItem* item = changedItem(row))
        m_app->performLong(
            tr("Copia di «%1»…").arg(qtText(item->name)),
            [item = *item, profile = *m_profile,
             notice = tr("Portato in «%1»").arg(sourceName())](ProfileStore& store) {
                store.bringToSource(item, profile);
                return notice;
            },
            [] {}, tr("«%1» rimesso com'era").arg(qtText(item->name)));
}

void ComponentModel::keepOwn(int row) {
    if (const ChangedItem* item = changedItem(row))
        m_app->performSoon(tr("Salvataggio…"), [item = *item, profile = *m_profile](ProfileStore& store) {
            store.keepOwn(item, profile);
            return QString();
        });
}

void ComponentModel::relinkAll(const QString& profileId) {
    const Profile* profile = m_app->profile(profileId);
    if (profile == nullptr)
        return;
    const QString notice = tr("Ripresi da «%1»").arg(sourceName());
    m_app->performLong(
        tr("Collegamento di «%1»…").arg(title()),
        [component = m_component, profile = *profile, notice](ProfileStore& store) {
            store.relinkAll(component, profile);
            return notice;
        },
        [] {}, tr("%1: rimessi com'erano").arg(title()));
}

} // namespace selvane
