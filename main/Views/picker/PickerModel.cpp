// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/picker/PickerModel.h"

#include <algorithm>
#include <utility>

#include "AppModel/Following.h"

namespace selvane {

void PickerModel::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::selectionChanged, this, [this] {
            emit allAsked();
            setFocused(m_app->selection());
        });
    };
    if (follow(app, m_app, this, connectTo))
        emit appChanged();
}

void PickerModel::setFocused(const QString& id) {
    if (m_focused == id)
        return;
    m_focused = id;
    if (!id.isEmpty())
        m_lastFocused = id;
    emit focusedChanged();
}

void PickerModel::begin() {
    const auto launchedLast = m_app->activeID();
    const bool isFirst = !std::exchange(m_hasBegun, true);
    const QString launched = isFirst && launchedLast ? QString::fromStdString(*launchedLast) : QString();
    emit allAsked();
    setFocused(m_app->profile(launched) != nullptr ? launched : m_app->selection());
}

QStringList PickerModel::ids() const {
    QStringList ids;
    if (m_rows == nullptr)
        return ids;
    const int role = m_rows->roleNames().key("profileId", -1);
    for (int row = 0; row < m_rows->rowCount(); ++row)
        ids += m_rows->index(row, 0).data(role).toString();
    return ids;
}

void PickerModel::followSearch(bool isSearching) {
    const QStringList shown = ids();
    if (isSearching)
        setFocused(shown.value(0));
    else if (!shown.contains(m_focused))
        setFocused(m_lastFocused);
}

bool PickerModel::move(int step) {
    const QStringList shown = ids();
    const auto count = static_cast<int>(shown.size());
    if (count == 0)
        return false;
    const int position = std::max(0, static_cast<int>(shown.indexOf(m_focused)));
    setFocused(shown[((position + step) % count + count) % count]);
    return true;
}

bool PickerModel::launchFocused() {
    if (!ids().contains(m_focused))
        return false;
    m_app->launch(m_focused);
    return true;
}

bool PickerModel::launchNumber(const QString& digits) {
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    const QStringList shown = ids();
    if (!isNumber || number < 1 || number > shown.size())
        return false;
    setFocused(shown[number - 1]);
    m_app->launch(m_focused);
    return true;
}

} // namespace selvane
