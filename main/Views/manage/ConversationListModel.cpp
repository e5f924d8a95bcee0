// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ConversationListModel.h"

#include <algorithm>
#include <array>
#include <utility>

#include "AppModel/Following.h"
#include "AppModel/QtText.h"
#include "Views/sheets/ConversationTexts.h"
#include "platform/files/Progress.h"
#include "store/conversations/Conversations.h"
#include "store/conversations/ResumeCommand.h"

namespace selvane {
namespace {

constexpr std::size_t kMostFolders = 40;                        ///< in the menu; any can be typed
constexpr std::array<int, 5> kPeriodDays = {-1, 0, 7, 30, 365}; ///< as `periods` lists them; 365: this year

} // namespace

ConversationListModel::ConversationListModel(QObject* parent) : QAbstractListModel(parent) {
    constexpr int kHitInterval = 80; // milliseconds
    m_hitTimer.setInterval(kHitInterval);
    connect(&m_hitTimer, &QTimer::timeout, this, &ConversationListModel::addHits);
    connect(this, &ConversationListModel::filterChanged, this, &ConversationListModel::applyFilter);
}

ConversationListModel::~ConversationListModel() {
    if (m_progress)
        m_progress->cancel();
}

void ConversationListModel::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::reloaded, this, [this] {
            if (m_isShown && !m_hits) // other rows would end the search
                refresh();
        });
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    emit appChanged();
    if (m_isShown)
        refresh();
}

void ConversationListModel::setShown(bool shown) {
    if (m_isShown == shown)
        return;
    m_isShown = shown;
    emit shownChanged();
    if (shown)
        refresh();
    else
        stopSearch();
}

void ConversationListModel::refresh() {
    if (m_app == nullptr)
        return;
    if (m_progress)
        m_progress->cancel(); // only the newest reading counts
    m_progress = std::make_shared<Progress>();
    const auto read = [&store = m_app->store(),
                       progress = m_progress]() -> std::shared_ptr<const ConversationSearch> {
        try {
            const ProfileStore stoppable(store, *progress);
            return std::make_shared<ConversationSearch>(
                std::make_shared<ConversationList>(conversations(stoppable)));
        } catch (const std::exception&) { // it was cancelled
            return nullptr;
        }
    };
    m_isLoading = true;
    emit loadingChanged();
    m_reading.begin(read, [this](auto search) {
        m_isLoading = false;
        if (search)
            take(std::move(search));
        emit loadingChanged();
    });
}

void ConversationListModel::take(std::shared_ptr<const ConversationSearch> search) {
    if (m_index && m_index->list().conversations == search->list().conversations &&
        m_index->list().profiles == search->list().profiles)
        return;
    const QString profile = profiles().value(m_profile);
    const QString folder = folders().value(m_folder);
    stopSearch();
    m_hits.reset();
    setRows({}); // they are positions in the list before
    m_index = std::move(search);
    m_list = std::shared_ptr<const ConversationList>(m_index, &m_index->list());
    m_folders = m_index->folders();
    m_folders.resize(std::min(m_folders.size(), kMostFolders));
    m_profile = std::max(0, static_cast<int>(profiles().indexOf(profile)));
    m_folder = std::max(0, static_cast<int>(folders().indexOf(folder)));
    emit listChanged();
    emit filterChanged();
}

int ConversationListModel::total() const {
    return m_list ? static_cast<int>(m_list->conversations.size()) : 0;
}

QString ConversationListModel::tally() const {
    return m_list ? conversationTally(count(), total(), static_cast<int>(m_list->profiles.size()))
                  : QString();
}

QStringList ConversationListModel::profiles() const {
    QStringList names = {tr("Tutti i profili")};
    for (const Profile& profile : m_list ? m_list->profiles : std::vector<Profile>())
        names.append(QString::fromStdString(profile.meta.name));
    return names;
}

QStringList ConversationListModel::folders() const {
    QStringList names = {tr("Tutte le cartelle")};
    for (const std::string& folder : m_folders)
        names.append(shortFolder(folder, m_app->store().home()));
    return names;
}

QStringList ConversationListModel::periods() {
    return {tr("Sempre"), tr("Oggi"), tr("7 giorni"), tr("30 giorni"), tr("Quest'anno")};
}

void ConversationListModel::setSearch(const QString& text) {
    if (m_search == text)
        return;
    m_search = text;
    emit filterChanged();
}

ConversationFilter ConversationListModel::filter() const {
    ConversationFilter filter{.text = m_search.toStdString(), .app = m_fromApp, .terminal = m_fromTerminal};
    if (m_profile > 0)
        filter.profiles = {static_cast<std::size_t>(m_profile) - 1};
    if (m_folder > 0 && static_cast<std::size_t>(m_folder) <= m_folders.size())
        filter.folder = m_folders[static_cast<std::size_t>(m_folder) - 1];
    filter.since = periodBegin(kPeriodDays.at(static_cast<std::size_t>(m_period)));
    return filter;
}

void ConversationListModel::applyFilter() {
    stopSearch();
    m_hits.reset();
    setRows(m_index ? m_index->matches(filter()) : std::vector<std::uint32_t>());
    emit hitsChanged();
}

void ConversationListModel::setRows(std::vector<std::uint32_t> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    emit countChanged();
}

void ConversationListModel::searchTexts() {
    if (!m_index || m_search.trimmed().isEmpty())
        return;
    ConversationFilter wanted = filter();
    wanted.text.clear();
    m_run.begin(m_list, m_index->matches(wanted), m_search.trimmed().toStdString());
    m_hits.emplace();
    setRows({});
    m_hitTimer.start();
    emit hitsChanged();
}

void ConversationListModel::stopSearch() {
    if (!m_hitTimer.isActive())
        return;
    m_run.stop();
    addHits();
}

void ConversationListModel::addHits() {
    const bool isOver = !m_run.isRunning(); // before the last hits are taken
    std::vector<TextHit> hits = m_run.takeHits();
    std::ranges::sort(hits, {}, &TextHit::conversation);
    for (TextHit& hit : hits) {
        m_hits->emplace(hit.conversation, qtText(hit.excerpt));
        const auto place = std::ranges::lower_bound(m_rows, hit.conversation);
        const int row = static_cast<int>(place - m_rows.begin());
        beginInsertRows({}, row, row);
        m_rows.insert(place, hit.conversation);
        endInsertRows();
        // The neighbours may no longer be at the edge of their section.
        emit dataChanged(index(std::max(0, row - 1)), index(std::min(row + 1, count() - 1)),
                         {IsFirstRole, IsLastRole});
    }
    if (isOver)
        m_hitTimer.stop();
    if (!hits.empty())
        emit countChanged();
    if (isOver)
        emit hitsChanged();
}

void ConversationListModel::copyCommand(int row) {
    const Conversation* const wanted = conversation(row);
    if (wanted == nullptr || !wanted->hasTranscript())
        return;
    const Profile& profile = m_list->profiles.at(wanted->places.front().profile);
    m_app->copyCommand([&](const auto& helper) { return resumeCommand(helper, *wanted, profile); });
}

void ConversationListModel::show(int row) {
    if (const Conversation* const shown = conversation(row)) {
        const ConversationPlace& place = shown->places.front();
        m_app->reveal(place.transcripts.empty() ? place.record : place.transcripts.front());
    }
}

} // namespace selvane
