// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/EntryKeeper.h"

#include <utility>

#include "AppModel/AppModel.h"
#include "AppModel/Background.h"
#include "AppModel/QtText.h"

namespace selvane {

EntryKeeper::EntryKeeper(AppModel& app, const ProfileEntries& entries, const DesktopBridge& desktop)
    : m_app(app), m_entries(entries), m_desktop(desktop) {}

EntryKeeper::~EntryKeeper() {
    m_look.waitForFinished();
}

ProfileEntries::Draw EntryKeeper::draw() const {
    return [&desktop = m_desktop](const ProfileLook& look) { return desktop.drawIcon(look); };
}

void EntryKeeper::add(const QString& id) {
    const Profile* profile = m_app.profile(id);
    if (profile == nullptr)
        return;
    const auto work = [&entries = m_entries, profile = *profile, program = m_desktop.program(),
                       draw = draw()](ProfileStore&) {
        entries.add(profile, program, draw);
        return tr("«%1» è fra le applicazioni").arg(qtText(profile.meta.name));
    };
    m_app.performLong(tr("Aggiunta alle applicazioni…"), work);
}

void EntryKeeper::remove(const QString& id) {
    const Profile* profile = m_app.profile(id);
    if (profile == nullptr)
        return;
    m_look.waitForFinished(); // or it might correct what is no longer there
    m_app.perform([&] {
        m_entries.remove(*profile);
        m_app.setNotice(tr("«%1» non è più fra le applicazioni").arg(qtText(profile->meta.name)));
    });
}

void EntryKeeper::start() {
    connect(&m_app, &AppModel::reloaded, this, &EntryKeeper::refresh, Qt::UniqueConnection);
    refresh();
}

void EntryKeeper::refresh() {
    m_looksAgain = m_isLooking;
    if (std::exchange(m_isLooking, true))
        return;
    const auto look = [this, profiles = m_app.profiles(), known = m_known, gone = m_gone,
                       root = m_app.store().root()] { return refreshed(profiles, known, gone, root); };
    m_look = runInBackground(this, look, [this](const Outcome& outcome) { take(outcome); });
}

/// On the other thread: uses only what never changes.
EntryKeeper::Outcome EntryKeeper::refreshed(const std::vector<Profile>& profiles, const MadeAt& known,
                                            MadeAt gone, const std::filesystem::path& root) const {
    const std::filesystem::path program = m_desktop.program();
    for (const Profile& profile : profiles) {
        const auto found = gone.find(profile.configDir);
        if (found == gone.end())
            continue;
        if (found->second == profile.meta.created)
            failureOf([&] { m_entries.add(profile, program, draw()); });
        gone.erase(found);
    }
    for (const std::filesystem::path& folder : m_entries.refresh(profiles, root, program, draw())) {
        if (const auto found = known.find(folder); found != known.end())
            gone.insert(*found);
    }
    Outcome outcome;
    outcome.gone = std::move(gone);
    for (const Profile& profile : profiles) {
        outcome.known[profile.configDir] = profile.meta.created;
        if (m_entries.isThere(profile))
            outcome.ids += QString::fromStdString(profile.id);
    }
    return outcome;
}

void EntryKeeper::take(const Outcome& outcome) {
    m_isLooking = false;
    m_known = outcome.known;
    m_gone = outcome.gone;
    if (m_ids != outcome.ids) {
        m_ids = outcome.ids;
        emit idsChanged();
    }
    if (m_looksAgain)
        refresh();
}

} // namespace selvane
