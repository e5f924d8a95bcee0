// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <ostream>

#include "Main/Arguments.h"
#include "Main/Commands.h"

namespace selvane::CLI {

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
    if (call.arguments.size() > 3) {
        const std::set<std::string> ids(call.arguments.begin() + 3, call.arguments.end());
        std::erase_if(chosen, [&](const CodeSession& session) { return !ids.contains(session.id); });
    }
    const ImportCount count = call.store.importSessions(chosen, source, target);
    call.out << "copiate " << count.copied << ", in attesa del prossimo avvio " << count.pending << '\n';
}

} // namespace selvane::CLI
