// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/NewProfileForm.h"

#include <QPointer>

#include <algorithm>
#include <utility>

#include "AppModel/Following.h"
#include "AppModel/QtText.h"

namespace selvane {
namespace {

ShareMode nearestMode(ShareMode wanted, Component component) {
    if (allows(component, wanted))
        return wanted;
    return wanted == ShareMode::shared && allows(component, ShareMode::extend) ? ShareMode::extend
                                                                               : ShareMode::separate;
}

std::unique_ptr<ChoiceListModel> noChoices() {
    auto model = std::make_unique<ChoiceListModel>();
    QQmlEngine::setObjectOwnership(model.get(), QQmlEngine::CppOwnership);
    return model;
}

QStringList texts(std::span<const ShareMode> modes, std::string_view (*textOf)(ShareMode)) {
    QStringList result;
    for (const ShareMode mode : modes)
        result += qtText(textOf(mode));
    return result;
}

} // namespace

NewProfileForm::NewProfileForm(QObject* parent) : QAbstractListModel(parent) {
    connect(this, &NewProfileForm::nameChanged, this, &NewProfileForm::canCreateChanged);
}

void NewProfileForm::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::reloaded, this, [this] {
            if (m_app->profile(m_source) == nullptr)
                setSource({});
        });
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    listComponents();
    emit appChanged();
    emit sourceChanged();
}

void NewProfileForm::setSource(const QString& id) {
    if (m_source == id)
        return;
    m_source = id;
    listComponents();
    emit sourceChanged();
}

void NewProfileForm::rememberChoices() {
    for (const Row& row : m_rows) {
        if (!row.items)
            continue;
        std::set<std::string>& leftOut = m_leftOut[row.component];
        for (const ChoiceListModel::Entry& entry : row.items->entries()) {
            if (entry.isChosen)
                leftOut.erase(entry.key);
            else
                leftOut.insert(entry.key);
        }
    }
}

void NewProfileForm::listComponents() {
    rememberChoices();
    beginResetModel();
    // Views use the items of the old rows until the reset has ended.
    const std::vector<Row> old = std::exchange(m_rows, {});
    const Profile* source = m_app == nullptr ? nullptr : m_app->profile(m_source);
    if (m_app != nullptr && source == nullptr)
        m_source.clear();
    if (source != nullptr) {
        for (const Component component : kComponents) {
            const auto chosen = m_modes.find(component);
            Row row{component, chosen == m_modes.end() ? defaultMode(component) : chosen->second, nullptr};
            if (isCollection(component))
                row.items = noChoices();
            if (component == Component::rules)
                connect(row.items.get(), &ChoiceListModel::chosenChanged, this,
                        &NewProfileForm::readIsolation);
            m_rows.push_back(std::move(row));
        }
    }
    endResetModel();
    if (m_app != nullptr)
        readIsolation();
    if (source == nullptr)
        return;
    const auto read = [&store = m_app->store(), profile = *source] {
        Items items;
        for (const Component component : kComponents) {
            if (isCollection(component))
                items[component] = store.items(component, profile);
        }
        return items;
    };
    m_reading.begin(read, [this](const Items& items) { listItems(items); });
    emit canCreateChanged();
}

void NewProfileForm::listItems(const Items& items) {
    for (const Row& row : m_rows) {
        if (!row.items)
            continue;
        const std::set<std::string>& leftOut = m_leftOut[row.component];
        std::vector<ChoiceListModel::Entry> entries;
        for (const ComponentItem& item : items.at(row.component))
            entries.push_back(
                {item.name, QString::fromStdString(item.name), {}, !leftOut.contains(item.name)});
        row.items->setEntries(std::move(entries));
    }
    emit canCreateChanged();
}

void NewProfileForm::setIsolated(bool isolated) {
    m_isolated = isolated;
    emit isIsolatedChanged();
}

/// Whether it makes a difference depends on what is taken; once the user has chosen, it doesn't matter here.
void NewProfileForm::readIsolation() {
    if (m_isolated)
        return;
    const auto read = [&store = m_app->store(), wanted = request().profile] {
        return store.isolationMatters(wanted);
    };
    m_isolation.begin(read, [this](bool matters) {
        m_isolationMatters = matters;
        emit isIsolatedChanged();
    });
}

QString NewProfileForm::sourceName() const {
    const Profile* source = m_app == nullptr ? nullptr : m_app->profile(m_source);
    return source == nullptr ? QString() : QString::fromStdString(source->meta.name);
}

void NewProfileForm::setMode(int row, int modeIndex) {
    if (row < 0 || row >= rowCount())
        return;
    Row& changed = m_rows[static_cast<std::size_t>(row)];
    const auto modes = allowedModes(changed.component);
    if (modeIndex < 0 || modeIndex >= static_cast<int>(modes.size()))
        return;
    changed.mode = modes[static_cast<std::size_t>(modeIndex)];
    m_modes[changed.component] = changed.mode;
    emit dataChanged(index(row), index(row), {ModeIndexRole});
    readIsolation();
}

void NewProfileForm::setAll(ShareMode mode) {
    if (m_rows.empty())
        return;
    for (Row& row : m_rows)
        row.mode = m_modes[row.component] = nearestMode(mode, row.component);
    emit dataChanged(index(0), index(rowCount() - 1), {ModeIndexRole});
    readIsolation();
}

ProfileRequest NewProfileForm::request() const {
    ProfileRequest request;
    request.profile.name = m_name.toStdString();
    request.profile.summary = m_summary.toStdString();
    request.profile.look = m_look.look();
    request.isolated = m_isolated;
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
    if (!canCreate())
        return;
    m_app->create(request(), [form = QPointer(this)] {
        if (form)
            emit form->succeeded();
    });
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
        return qtText(title(row.component));
    case SymbolRole:
        return qtText(selvane::symbol(row.component));
    case ModeLabelsRole:
        return texts(allowedModes(row.component), label);
    case ModeExplanationsRole:
        return texts(allowedModes(row.component), help);
    case ModeIndexRole: {
        const auto modes = allowedModes(row.component);
        return static_cast<int>(std::find(modes.begin(), modes.end(), row.mode) - modes.begin());
    }
    case ItemsRole:
        return QVariant::fromValue(row.items.get());
    default:
        return {};
    }
}

QHash<int, QByteArray> NewProfileForm::roleNames() const {
    return {{TitleRole, "title"},           {SymbolRole, "symbol"},
            {ModeLabelsRole, "modeLabels"}, {ModeExplanationsRole, "modeExplanations"},
            {ModeIndexRole, "modeIndex"},   {ItemsRole, "items"}};
}

} // namespace selvane
