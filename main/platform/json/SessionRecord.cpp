// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/SessionRecord.h"

#include <new>

#include "platform/services/Services.h"

namespace selvane {

namespace {

void takeText(void* context, SessionField field, const char* bytes, std::size_t count) {
    SessionRecord& record = *static_cast<SessionRecord*>(context);
    std::string text(bytes, count);
    switch (field) {
    case SessionField::sessionId:
        record.sessionId = std::move(text);
        break;
    case SessionField::title:
        record.title = std::move(text);
        break;
    case SessionField::cwd:
        record.cwd = std::move(text);
        break;
    case SessionField::cliSessionId:
        record.cliSessionId = std::move(text);
        break;
    case SessionField::priorCliSessionId:
        record.priorCliSessionIds.push_back(std::move(text));
        break;
    }
}

} // namespace

bool isStrictJson(std::string_view text) {
    return services().isStrictJson(text.data(), text.size());
}

SessionRecordReader::SessionRecordReader() : m_state(services().newSessionReader()) {
    if (m_state == nullptr)
        throw std::bad_alloc();
}

SessionRecordReader::~SessionRecordReader() {
    services().deleteSessionReader(m_state);
}

std::optional<SessionRecord> SessionRecordReader::read(const std::string& file) {
    SessionRecord record;
    const SessionRecordSink sink{
        .context = &record,
        .text = takeText,
        .lastActivity = [](void* context,
                           double time) { static_cast<SessionRecord*>(context)->lastActivityAt = time; },
        .archived = [](void* context) { static_cast<SessionRecord*>(context)->isArchived = true; },
    };
    if (!services().readSession(m_state, file.c_str(), sink))
        return std::nullopt;
    return record;
}

} // namespace selvane
