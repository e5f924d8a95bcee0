// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/picker/PickerModel.h"

#include <algorithm>
#include <utility>

#include "AppModel/Following.h"

namespace selvane {

void PickerModel::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::selectionChanged, this, [this] { setFocused(m_app->selection()); });
    };
    if (follow(app, m_app, this, connectTo))
        emit appChanged();
}

void PickerModel::setFocused(const QString& id) {
    if (m_focused == id)
        return;
    m_focused = id;
    emit focusedChanged();
}

void PickerModel::begin() {
    const auto launchedLast = m_app->activeID();
    const bool isFirst = !std::exchange(m_hasBegun, true);
    const QString launched = isFirst && launchedLast ? QString::fromStdString(*launchedLast) : QString();
    setFocused(m_app->profile(launched) != nullptr ? launched : m_app->selection());
}

bool PickerModel::move(int step) {
    const std::vector<Profile>& profiles = m_app->profiles();
    const int count = static_cast<int>(profiles.size());
    if (count == 0)
        return false;
    const auto current = std::find_if(profiles.begin(), profiles.end(), [&](const Profile& profile) {
        return QString::fromStdString(profile.id) == m_focused;
    });
    const int position = current == profiles.end() ? 0 : static_cast<int>(current - profiles.begin());
    const int next = ((position + step) % count + count) % count;
    setFocused(QString::fromStdString(profiles[static_cast<std::size_t>(next)].id));
    return true;
}

bool PickerModel::launchFocused() {
    if (m_app->profile(m_focused) == nullptr)
        return false;
    m_app->launch(m_focused);
    return true;
}

bool PickerModel::launchNumber(const QString& digits) {
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    const std::vector<Profile>& profiles = m_app->profiles();
    if (!isNumber || number < 1 || number > static_cast<int>(profiles.size()))
        return false;
    setFocused(QString::fromStdString(profiles[static_cast<std::size_t>(number - 1)].id));
    m_app->launch(m_focused);
    return true;
}

} // namespace selvane
