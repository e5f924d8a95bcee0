// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/ImportForm.h"

#include <QPointer>

namespace selvane {

QString ImportForm::heading() const {
    const Profile* target = m_app == nullptr ? nullptr : m_app->profile(m_target);
    const auto part = component(m_component.toStdString());
    if (target == nullptr || !part)
        return {};
    const std::string_view name = title(*part);
    return tr("%1 non ancora presenti in «%2»")
        .arg(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())),
             QString::fromStdString(target->meta.name));
}

void ImportForm::setSource(const QString& id) {
    m_source = id;
    listItems();
    emit sourceChanged();
}

/// Compares names only, not contents.
void ImportForm::listItems() {
    std::vector<ChoiceListModel::Entry> entries;
    const Profile* source = m_app->profile(m_source);
    const Profile* target = m_app->profile(m_target);
    const auto part = component(m_component.toStdString());
    if (source != nullptr && target != nullptr && part) {
        std::set<std::string> present;
        for (const ComponentItem& item : m_app->store().items(*part, *target))
            present.insert(item.name);
        for (const ComponentItem& item : m_app->store().items(*part, *source)) {
            if (!present.contains(item.name))
                entries.push_back({item.name, QString::fromStdString(item.name), {}, false});
        }
    }
    m_items.setEntries(std::move(entries));
}

void ImportForm::submit() {
    const Profile* source = m_app->profile(m_source);
    const Profile* target = m_app->profile(m_target);
    const auto part = component(m_component.toStdString());
    const std::set<std::string> names = m_items.chosenKeys();
    if (source == nullptr || target == nullptr || !part || names.empty())
        return;
    m_app->performLong(
        tr("Aggiunta degli elementi…"),
        [names, from = *source, into = *target, part = *part, links = m_links](ProfileStore& store) {
            store.importItems(names, from, into, part, links);
            return QString();
        },
        [form = QPointer(this)] {
            if (form)
                emit form->succeeded();
        });
}

} // namespace selvane
