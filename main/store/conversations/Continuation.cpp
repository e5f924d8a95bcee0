// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <chrono>
#include <set>

#include "model/LauncherError.h"
#include "platform/files/FileBatch.h"
#include "platform/json/Json.h"
#include "platform/text/Text.h"
#include "store/OwnFolder.h"
#include "store/ProfileStore.h"
#include "store/SessionHandover.h"
#include "store/conversations/ResumeCommand.h"
#include "store/conversations/TranscriptCopies.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// The record of a conversation, in whichever profile it is; empty if it has none.
fs::path recordFile(const Conversation& conversation) {
    for (const ConversationPlace& place : conversation.places) {
        if (!place.record.empty())
            return place.record;
    }
    return {};
}

bool isBelow(const fs::path& path, const fs::path& folder) {
    return path.native().starts_with(folder.native() + "/");
}

std::int64_t secondsOf(fs::file_time_type time) {
    const auto system = std::chrono::file_clock::to_sys(time);
    return std::chrono::floor<std::chrono::seconds>(system).time_since_epoch().count();
}

/// The organisation that a profile's own sign-in names: its id and its name.
std::pair<std::string, std::string> signedInTo(const std::optional<std::string>& state,
                                               const fs::path& file) {
    try {
        const Json whole = json::parse(state.value_or("{}"), file);
        const Json* const account = json::find(whole, "oauthAccount");
        const auto text = [&](std::string_view key) {
            const Json* const value = account == nullptr ? nullptr : json::find(*account, key);
            return value != nullptr && value->is_string() ? value->get<std::string>() : std::string();
        };
        return {text("organizationUuid"), text("organizationName")};
    } catch (const JsonError&) {
        return {};
    }
}

} // namespace

std::vector<OrganisationFolder> ProfileStore::organisationFolders(const Profile& profile) const {
    const auto [id, name] = signedInTo(m_files.readIfPossible(globalJSON(profile)), globalJSON(profile));
    std::vector<OrganisationFolder> folders;
    const fs::path data = desktopDataDir(profile);
    for (const fs::path& folder : sessionFolders(data, Unreadable::fails)) {
        if (m_files.linkBelow(data, folder)) // nothing is written behind a link
            continue;
        OrganisationFolder known{.folder = folder, .id = folder.filename(), .name = {}};
        if (known.id == id)
            known.name = name;
        known.lastUsed = secondsOf(fs::last_write_time(folder));
        for (const std::string& entry : m_files.entries(folder))
            known.sessions += isSessionRecord(entry) ? 1 : 0;
        folders.push_back(std::move(known));
    }
    return folders;
}

Continuation ProfileStore::planContinuation(const ConversationList& list, const Conversation& conversation,
                                            const Profile& target,
                                            const std::optional<fs::path>& organisation) const {
    Continuation plan;
    const ConversationPlace& furthest = conversation.places.front();
    if (list.profiles.at(furthest.profile).configDir != target.configDir) {
        for (const fs::path transcript : furthest.transcripts) {
            const fs::path folder = transcript.parent_path();
            const fs::path place = target.configDir / "projects" / folder.filename();
            for (const TranscriptCopy& copy :
                 transcriptCopies(transcript.stem(), folder, place, Existing::continued)) {
                using Kind = TranscriptCopy::Kind;
                const bool isCopied = copy.kind == Kind::added || copy.kind == Kind::continued;
                plan.bytes += isCopied ? copy.size : 0;
                plan.copied += copy.kind == Kind::added ? 1 : 0;
                plan.replaced += copy.kind == Kind::continued ? 1 : 0;
                plan.kept += copy.kind == Kind::kept ? 1 : 0;
            }
        }
    }
    const fs::path record = recordFile(conversation);
    const fs::path data = desktopDataDir(target);
    const auto place = organisation ? organisation : sessionPlace(data);
    if (record.empty())
        plan.record = Continuation::Record::none;
    else if (isBelow(record, data) || (place && m_files.exists(*place / record.filename())))
        plan.record = Continuation::Record::present;
    else
        plan.record =
            place && !desktopDataInUse(data) ? Continuation::Record::now : Continuation::Record::atNextLaunch;
    return plan;
}

ImportCount ProfileStore::continueIn(const ConversationList& list, const Conversation& conversation,
                                     const Profile& target, const std::optional<fs::path>& organisation) {
    const fs::path data = desktopDataDir(target);
    if (organisation && (!isBelow(*organisation, data) || !m_files.isFolder(*organisation)))
        throw LauncherError("Organizzazione sconosciuta: " + text::singleLine(organisation->string()));
    if (!conversation.hasTranscript())
        throw LauncherError("Manca il testo della conversazione: c'è solo la voce nell'elenco");
    const FolderLock lock = locked(target);
    const Continuation plan = planContinuation(list, conversation, target, organisation);
    const ConversationPlace& furthest = conversation.places.front();
    FileBatch batch(target.configDir, m_progress);
    if (list.profiles.at(furthest.profile).configDir != target.configDir) {
        for (const fs::path transcript : furthest.transcripts) {
            announce(transcript);
            announce(transcript.parent_path() / transcript.stem());
        }
        OwnFolders folders(target);
        for (const fs::path transcript : furthest.transcripts)
            copyTranscript(transcript.stem(), transcript.parent_path(), folders, Existing::continued, batch);
    }
    const bool isQueued = plan.record == Continuation::Record::atNextLaunch;
    if (isQueued || plan.record == Continuation::Record::now) {
        const fs::path record = recordFile(conversation);
        const fs::path queue = target.configDir / kSessionQueue;
        std::string bytes = continuedRecord(m_files.read(record), record);
        const auto write = [&](const fs::path& file, std::string content) {
            batch.write(
                file, [content = std::move(content)] { return content; }, Privacy::ownerOnly);
        };
        if (isQueued)
            createOwnFolder(target, queue);
        if (isQueued && organisation)
            write(queue / placeNoteFor(record.filename().native()),
                  organisation->lexically_relative(data).native());
        const fs::path place = organisation ? *organisation : sessionPlace(data).value_or(queue);
        write((isQueued ? queue : place) / record.filename(), std::move(bytes));
    }
    batch.finish();
    return {.copied = isQueued ? 0 : 1, .pending = isQueued ? 1 : 0};
}

std::string resumeCommand(const fs::path& helper, const Conversation& conversation, const Profile& profile) {
    std::string command;
    if (!conversation.cwd.empty())
        command = "cd " + text::quotedForTerminal(conversation.cwd) + " && ";
    command += text::quotedForTerminal(helper.native()) + " " + text::quotedForTerminal(profile.id);
    if (!conversation.cliSessionIDs.empty())
        command += " --resume " + text::quotedForTerminal(conversation.cliSessionIDs.front());
    return command;
}

} // namespace selvane
