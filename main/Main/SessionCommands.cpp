// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <ostream>

#include "Main/Arguments.h"
#include "Main/Commands.h"

namespace selvane::CLI {
namespace {

void print(const Call& call, const ImportCount& count) {
    call.out << "copiate " << count.copied << ", in attesa del prossimo avvio " << count.pending << '\n';
}

} // namespace

void sessions(const Call& call) {
    const Profile owner = profile(call);
    const std::vector<CodeSession> sessions = call.store.codeSessions(owner);
    const TranscriptIndex transcripts = call.store.transcripts(owner);
    for (const CodeSession& session : sessions) {
        call.out << field(session.id) << '\t' << field(session.title) << '\t' << field(session.cwd) << '\t'
                 << (transcripts.hasTranscript(session) ? "conversazione presente" : "solo voce") << '\n';
    }
}

void importSessions(const Call& call) {
    requireArguments(call, 3);
    const Profile source = profile(call);
    const Profile target = profile(call.arguments[2], call.store);
    std::vector<CodeSession> chosen = call.store.codeSessions(source, Unreadable::fails);
    if (call.arguments.size() == 3) {
        print(call, call.store.importSessions(chosen, source, target));
        return;
    }
    // An id is that of a record, or one of the agent's own.
    std::set<std::string> ids(call.arguments.begin() + 3, call.arguments.end());
    std::set<std::string> found;
    std::erase_if(chosen, [&](const CodeSession& session) {
        std::vector<std::string> names = session.cliSessionIDs;
        names.push_back(session.id);
        std::erase_if(names, [&](const std::string& name) { return !ids.contains(name); });
        found.insert(names.begin(), names.end());
        return names.empty();
    });
    std::erase_if(ids, [&](const std::string& id) { return found.contains(id); });
    ImportCount count = call.store.importSessions(chosen, source, target, Existing::continued);
    count.copied +=
        call.store.importTranscripts({ids.begin(), ids.end()}, source, target, Existing::continued);
    print(call, count);
}

} // namespace selvane::CLI
