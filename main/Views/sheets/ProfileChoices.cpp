// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/ProfileChoices.h"

#include "AppModel/Following.h"

namespace selvane {

void ProfileChoices::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::reloaded, this, &ProfileChoices::changed);
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    emit changed();
}

std::vector<ProfileChoices::Choice> ProfileChoices::choices() const {
    std::vector<Choice> result;
    if (!m_noneLabel.isEmpty())
        result.push_back({{}, m_noneLabel});
    if (m_app == nullptr)
        return result;
    for (const Profile& profile : m_app->profiles()) {
        QString id = QString::fromStdString(profile.id);
        if (id != m_except)
            result.push_back({std::move(id), QString::fromStdString(profile.meta.name)});
    }
    return result;
}

QStringList ProfileChoices::labels() const {
    QStringList result;
    for (const Choice& choice : choices())
        result += choice.label;
    return result;
}

int ProfileChoices::currentIndex() const {
    const auto all = choices();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].id == m_current)
            return static_cast<int>(i);
    }
    return -1;
}

QString ProfileChoices::idAt(int index) const {
    const auto all = choices();
    return index < 0 || index >= static_cast<int>(all.size()) ? QString()
                                                              : all[static_cast<std::size_t>(index)].id;
}

} // namespace selvane
