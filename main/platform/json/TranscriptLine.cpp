// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/TranscriptLine.h"

#include <new>

#include "platform/services/Received.h"
#include "platform/text/Instant.h"

namespace selvane {

namespace {

using ReceivedLine = Received<TranscriptLine>;

void takeText(void* context, TranscriptField field, const char* bytes, std::size_t count) noexcept {
    ReceivedLine::add(context, [&](TranscriptLine& line) {
        const std::string_view text(bytes, count);
        switch (field) {
        case TranscriptField::cwd:
            line.cwd = text;
            break;
        case TranscriptField::timestamp:
            line.time = text::instant(text);
            break;
        case TranscriptField::title:
            line.title = text;
            break;
        case TranscriptField::userWords:
        case TranscriptField::agentWords:
            line.isUser = field == TranscriptField::userWords;
            line.words.emplace_back(text);
            break;
        }
    });
}

} // namespace

TranscriptLineReader::TranscriptLineReader() : m_state(services().newTranscriptReader()) {
    if (m_state == nullptr)
        throw std::bad_alloc();
}

TranscriptLineReader::~TranscriptLineReader() {
    services().deleteTranscriptReader(m_state);
}

std::optional<TranscriptLine> TranscriptLineReader::read(std::string_view line) {
    ReceivedLine received;
    const TranscriptSink sink{.context = &received, .text = takeText};
    const bool isObject = services().readTranscriptLine(m_state, line.data(), line.size(), sink);
    TranscriptLine result = received.take();
    return isObject ? std::optional(std::move(result)) : std::nullopt;
}

} // namespace selvane
