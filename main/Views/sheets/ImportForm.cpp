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

void ImportForm::componentComplete() {
    connect(m_app, &AppModel::reloaded, this, &ImportForm::follow);
    setSource(m_app->firstOther(m_target));
}

void ImportForm::setSource(const QString& id) {
    m_source = id;
    m_items.setEntries({});
    setLoading(true);
    listItems();
    emit sourceChanged();
}

void ImportForm::follow() {
    emit inputChanged(); // the target may have another name
    if (m_app->profile(m_source) == nullptr)
        setSource(m_app->firstOther(m_target));
    else
        listItems();
}

/// Compares names only, not contents.
void ImportForm::listItems() {
    using Entries = std::vector<ChoiceListModel::Entry>;
    const Profile* source = m_app->profile(m_source);
    const Profile* target = m_app->profile(m_target);
    const auto part = component(m_component.toStdString());
    if (source == nullptr || target == nullptr || !part) {
        setLoading(false);
        return;
    }
    const auto read = [&store = m_app->store(), part = *part, from = *source, into = *target] {
        std::set<std::string> present;
        for (const ComponentItem& item : store.items(part, into))
            present.insert(item.name);
        Entries entries;
        for (const ComponentItem& item : store.items(part, from)) {
            if (!present.contains(item.name))
                entries.push_back({item.name, QString::fromStdString(item.name), {}, false});
        }
        return entries;
    };
    m_reading.begin(read, [this](Entries entries) {
        setLoading(false);
        m_items.updateEntries(std::move(entries));
    });
}

void ImportForm::setLoading(bool isLoading) {
    if (m_isLoading == isLoading)
        return;
    m_isLoading = isLoading;
    emit isLoadingChanged();
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
