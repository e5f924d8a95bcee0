// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/NewProfileForm.h"

namespace selvane {
namespace {

QString text(std::string_view value) {
    return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

ShareMode nearestMode(ShareMode wanted, Component component) {
    if (allows(component, wanted))
        return wanted;
    return wanted == ShareMode::shared && component == Component::claudeMd ? ShareMode::extend
                                                                           : ShareMode::separate;
}

std::unique_ptr<ChoiceListModel> choices(const std::vector<ComponentItem>& items) {
    std::vector<ChoiceListModel::Entry> entries;
    for (const ComponentItem& item : items)
        entries.push_back({item.name, QString::fromStdString(item.name), {}, true});
    auto model = std::make_unique<ChoiceListModel>();
    model->setEntries(std::move(entries));
    return model;
}

} // namespace

void NewProfileForm::setSource(const QString& id) {
    if (m_source == id)
        return;
    beginResetModel();
    m_source = id;
    m_rows.clear();
    if (const Profile* source = m_app->profile(id)) {
        for (const Component component : kComponents) {
            Row row{component, defaultMode(component), nullptr};
            if (isCollection(component))
                row.items = choices(m_app->store().items(component, *source));
            m_rows.push_back(std::move(row));
        }
    }
    endResetModel();
    emit sourceChanged();
}

QString NewProfileForm::sourceName() const {
    const Profile* source = m_app->profile(m_source);
    return source == nullptr ? QString() : QString::fromStdString(source->meta.name);
}

void NewProfileForm::setMode(int row, const QString& mode) {
    const auto chosen = shareMode(mode.toStdString());
    if (!chosen || row < 0 || row >= rowCount() ||
        !allows(m_rows[static_cast<std::size_t>(row)].component, *chosen))
        return;
    m_rows[static_cast<std::size_t>(row)].mode = *chosen;
    emit dataChanged(index(row), index(row), {ModeRole});
}

void NewProfileForm::setAll(const QString& mode) {
    const auto chosen = shareMode(mode.toStdString());
    if (!chosen || m_rows.empty())
        return;
    for (Row& row : m_rows)
        row.mode = nearestMode(*chosen, row.component);
    emit dataChanged(index(0), index(rowCount() - 1), {ModeRole});
}

ProfileRequest NewProfileForm::request() const {
    ProfileRequest request;
    request.profile.name = m_name.toStdString();
    request.profile.summary = m_summary.toStdString();
    request.profile.symbol = m_symbol.toStdString();
    const Profile* source = m_app->profile(m_source);
    if (source == nullptr)
        return request;
    request.profile.from = *source;
    for (const Row& row : m_rows) {
        request.profile.modes[row.component] = row.mode;
        if (row.items)
            request.profile.selection[row.component] = row.items->chosenKeys();
    }
    if (m_sharesAccount)
        request.profile.account = source->accountOwner();
    request.copySessions = !m_sharesAccount && m_copiesSessions;
    return request;
}

void NewProfileForm::create() {
    if (canCreate())
        m_app->create(request());
}

int NewProfileForm::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant NewProfileForm::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TitleRole:
        return text(title(row.component));
    case SymbolRole:
        return text(selvane::symbol(row.component));
    case ModeRole:
        return text(rawValue(row.mode));
    case AllowedModesRole: {
        QStringList modes;
        for (const ShareMode mode : allowedModes(row.component))
            modes += text(rawValue(mode));
        return modes;
    }
    case ItemsRole:
        return QVariant::fromValue(row.items.get());
    default:
        return {};
    }
}

QHash<int, QByteArray> NewProfileForm::roleNames() const {
    return {{TitleRole, "title"},
            {SymbolRole, "symbol"},
            {ModeRole, "mode"},
            {AllowedModesRole, "allowedModes"},
            {ItemsRole, "items"}};
}

} // namespace selvane
