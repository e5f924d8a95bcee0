// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/SessionRecord.h"

#include <new>

#include "platform/services/Received.h"
#include "platform/services/Services.h"

namespace selvane {

namespace {

using ReceivedRecord = Received<SessionRecord>;

void set(SessionRecord& record, SessionField field, std::string text) {
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

void takeText(void* context, SessionField field, const char* bytes, std::size_t count) noexcept {
    ReceivedRecord::add(context,
                        [&](SessionRecord& record) { set(record, field, std::string(bytes, count)); });
}

void takeActivity(void* context, double time) noexcept {
    ReceivedRecord::add(context, [&](SessionRecord& record) { record.lastActivityAt = time; });
}

void takeArchived(void* context) noexcept {
    ReceivedRecord::add(context, [](SessionRecord& record) { record.isArchived = true; });
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
    ReceivedRecord record;
    const SessionRecordSink sink{
        .context = &record,
        .text = takeText,
        .lastActivity = takeActivity,
        .archived = takeArchived,
    };
    const bool isRecord = services().readSession(m_state, file.c_str(), sink);
    SessionRecord received = record.take();
    return isRecord ? std::optional(std::move(received)) : std::nullopt;
}

} // namespace selvane
