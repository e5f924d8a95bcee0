// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/Conversations.h"

#include <deque>
#include <limits>
#include <memory>
#include <span>
#include <sys/stat.h>
#include <unordered_map>

#include "platform/files/Progress.h"
#include "platform/process/Parallel.h"
#include "platform/text/Text.h"
#include "store/ProfileStore.h"
#include "store/conversations/RecordFiles.h"
#include "store/conversations/TranscriptEnds.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// A transcript, or several of one session, whose ends or sizes are still to be read.
struct Reading {
    std::size_t row = 0;
    std::size_t place = 0;
    TranscriptSummary summary; ///< what was read
};

constexpr double kNever = -std::numeric_limits<double>::infinity();

class Listing {
public:
    explicit Listing(const ProfileStore& store) : m_store(store) { m_list.profiles = store.loadAll(); }

    ConversationList make() {
        m_accounts = accountsOf(m_store, m_list.profiles);
        m_records = recordsOf(m_store, m_accounts);
        listTranscripts();
        joinRecords();
        placeTranscripts();
        placeRecords();
        forgetWhatIsPlaced();
        readTranscripts();
        complete();
        return std::move(m_list);
    }

private:
    void requireWanted() const {
        if (m_store.progress() != nullptr)
            m_store.progress()->requireWanted();
    }

    void listTranscripts();
    void joinRecords();
    void placeTranscripts();
    void placeRecords();
    void forgetWhatIsPlaced();
    void readTranscripts();
    void complete();
    void completeTerminal(Conversation& row, const TranscriptSummary& latest);
    std::size_t placeOf(Conversation& row, std::size_t profile);

    const ProfileStore& m_store;
    ConversationList m_list;
    std::vector<Account> m_accounts;
    std::vector<RecordFile> m_records;
    std::vector<std::unique_ptr<TranscriptIndex>> m_transcripts; ///< of each profile
    std::deque<Conversation> m_rows;                             ///< not in order yet; none of them moves
    std::vector<std::size_t> m_rowOfRecord;                      ///< of each in `m_records` that was read
    std::unordered_map<std::string_view, std::size_t> m_rowOfTranscript; ///< by ids that the rows hold
    std::vector<Reading> m_readings;
};

void Listing::listTranscripts() {
    m_transcripts.resize(m_list.profiles.size());
    inParallel(m_transcripts.size(), [this] {
        return [this](std::size_t profile) {
            requireWanted();
            m_transcripts[profile] =
                std::make_unique<TranscriptIndex>(m_list.profiles[profile].configDir, Unreadable::leftOut);
        };
    });
}

/// One row for each session, however many accounts have it.
void Listing::joinRecords() {
    std::unordered_map<std::string_view, std::size_t> rowOfSession;
    rowOfSession.reserve(m_records.size());
    m_rowOfRecord.resize(m_records.size());
    for (std::size_t number = 0; number < m_records.size(); ++number) {
        if (!m_records[number].record)
            continue;
        SessionRecord& record = *m_records[number].record;
        const auto [entry, isNew] = rowOfSession.try_emplace(record.sessionId, m_rows.size());
        if (isNew) {
            m_rows.emplace_back();
            m_rows.back().recordID = record.sessionId;
            m_rows.back().origin = ConversationOrigin::app;
        }
        Conversation& row = m_rows[entry->second];
        m_rowOfRecord[number] = entry->second;
        std::optional<double> activity;
        if (record.lastActivityAt)
            activity = *record.lastActivityAt / 1000.0;
        const bool isLatest = isNew || activity.value_or(kNever) > row.lastActivity.value_or(kNever);
        std::vector<std::string> ids = std::move(record.priorCliSessionIds);
        if (record.cliSessionId)
            ids.insert(ids.begin(), std::move(*record.cliSessionId));
        if (isLatest) {
            row.hasGivenTitle = record.title.has_value();
            row.title = std::move(record.title).value_or("");
            row.cwd = std::move(record.cwd).value_or("");
            row.lastActivity = activity;
            std::swap(ids, row.cliSessionIDs);
        }
        for (std::string& id : ids) {
            if (std::find(row.cliSessionIDs.begin(), row.cliSessionIDs.end(), id) == row.cliSessionIDs.end())
                row.cliSessionIDs.push_back(std::move(id));
        }
    }
    // A session may have been continued as two, which then share its transcript as an earlier one.
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].cliSessionIDs.empty())
            m_rowOfTranscript.try_emplace(m_rows[row].cliSessionIDs.front(), row);
    }
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        for (std::size_t earlier = 1; earlier < m_rows[row].cliSessionIDs.size(); ++earlier)
            m_rowOfTranscript.try_emplace(m_rows[row].cliSessionIDs[earlier], row);
    }
}

std::size_t Listing::placeOf(Conversation& row, std::size_t profile) {
    const auto place = std::ranges::find(row.places, profile, &ConversationPlace::profile);
    if (place != row.places.end())
        return static_cast<std::size_t>(place - row.places.begin());
    row.places.emplace_back();
    row.places.back().profile = profile;
    return row.places.size() - 1;
}

void Listing::placeTranscripts() {
    for (std::size_t profile = 0; profile < m_transcripts.size(); ++profile) {
        m_transcripts[profile]->forEach([&](const std::string& id, const fs::path& folder) {
            auto known = m_rowOfTranscript.find(id);
            if (known == m_rowOfTranscript.end()) {
                m_rows.emplace_back().cliSessionIDs = {id};
                known = m_rowOfTranscript.emplace(m_rows.back().cliSessionIDs[0], m_rows.size() - 1).first;
            }
            Conversation& row = m_rows[known->second];
            row.places[placeOf(row, profile)].transcripts.push_back(folder.native() + "/" + id + ".jsonl");
        });
    }
}

void Listing::placeRecords() {
    for (std::size_t number = 0; number < m_records.size(); ++number) {
        const RecordFile& file = m_records[number];
        if (!file.record)
            continue;
        Conversation& row = m_rows[m_rowOfRecord[number]];
        std::vector<std::size_t> users = m_accounts[file.account].profiles;
        const std::size_t owner = users.front();
        std::erase_if(users, [&](std::size_t profile) {
            return std::ranges::find(row.places, profile, &ConversationPlace::profile) == row.places.end();
        });
        if (users.empty()) // none of them has a transcript
            users = {owner};
        for (const std::size_t profile : users) {
            ConversationPlace& place = row.places[placeOf(row, profile)];
            if (!place.record.empty()) // that of the organisation used last counts
                continue;
            place.record = file.path;
            place.isArchived = file.record->isArchived;
            place.isInOtherOrganisation = file.isInOtherOrganisation;
            if (file.record->lastActivityAt)
                place.lastActivity = *file.record->lastActivityAt / 1000.0;
        }
    }
}

/// Of many conversations, that is more memory than the list itself takes.
void Listing::forgetWhatIsPlaced() {
    const auto free = [](auto& container) { std::remove_reference_t<decltype(container)>().swap(container); };
    free(m_records);
    free(m_transcripts);
    free(m_rowOfRecord);
    free(m_rowOfTranscript);
}

/// Of transcripts with a record, only the sizes are needed.
void Listing::readTranscripts() {
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        for (std::size_t place = 0; place < m_rows[row].places.size(); ++place) {
            if (!m_rows[row].places[place].transcripts.empty())
                m_readings.push_back({row, place, {}});
        }
    }
    inParallel(m_readings.size(), [this] {
        return [this, ends = std::make_shared<TranscriptEnds>()](std::size_t number) {
            requireWanted();
            Reading& reading = m_readings[number];
            Conversation& row = m_rows[reading.row];
            ConversationPlace& place = row.places[reading.place];
            const auto rank = [&](const std::string& path) { // the latest session's first
                const std::string id = fs::path(path).stem();
                return std::find(row.cliSessionIDs.begin(), row.cliSessionIDs.end(), id);
            };
            if (place.transcripts.size() > 1)
                std::ranges::sort(place.transcripts, {}, rank);
            std::span<const std::string> unread = place.transcripts;
            if (place.record.empty()) {
                if (auto summary = ends->read(unread.front())) {
                    place.lastActivity = summary->lastActivity;
                    place.size = summary->size;
                    reading.summary = std::move(*summary);
                    unread = unread.subspan(1);
                }
            }
            for (const std::string& path : unread) {
                struct stat status = {};
                if (::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode))
                    place.size += static_cast<std::int64_t>(status.st_size);
            }
        };
    });
}

void Listing::completeTerminal(Conversation& row, const TranscriptSummary& latest) {
    if (latest.hasGivenTitle >= row.hasGivenTitle && !latest.title.empty()) {
        row.title = latest.title;
        row.hasGivenTitle = latest.hasGivenTitle;
    }
    if (!latest.cwd.empty())
        row.cwd = latest.cwd;
}

void Listing::complete() {
    const auto activity = [](const auto& of) { return of.lastActivity.value_or(kNever); };
    for (const Reading& reading : m_readings) {
        Conversation& row = m_rows[reading.row];
        const bool isLatest = activity(row.places[reading.place]) > activity(row);
        if (isLatest)
            row.lastActivity = row.places[reading.place].lastActivity;
        if (row.origin == ConversationOrigin::terminal && (isLatest || row.title.empty()))
            completeTerminal(row, reading.summary);
    }
    const auto isFurther = [&](const ConversationPlace& a, const ConversationPlace& b) {
        if (a.transcripts.empty() != b.transcripts.empty())
            return b.transcripts.empty();
        return activity(a) != activity(b) ? activity(a) > activity(b) : a.profile < b.profile;
    };
    for (Conversation& row : m_rows) {
        std::ranges::sort(row.places, isFurther);
        if (text::trimmed(row.title).empty()) {
            row.title = "Senza titolo";
            row.hasGivenTitle = false;
        }
    }
    // Not the conversations themselves, which are large.
    std::vector<std::pair<double, std::size_t>> order;
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        order.emplace_back(activity(m_rows[row]), row);
    std::ranges::sort(order, [&](const auto& a, const auto& b) {
        return a.first != b.first ? a.first > b.first
                                  : m_rows[a.second].cliSessionIDs < m_rows[b.second].cliSessionIDs;
    });
    std::vector<Conversation> sorted;
    sorted.reserve(m_rows.size());
    for (const auto& [time, row] : order)
        sorted.push_back(std::move(m_rows[row]));
    m_list.conversations = std::move(sorted);
}

} // namespace

ConversationList conversations(const ProfileStore& store) {
    return Listing(store).make();
}

} // namespace selvane
