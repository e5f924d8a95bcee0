// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <optional>
#include <string_view>

#include <simdjson.h>

#include "platform/services/Functions.h"

namespace selvane::module {

namespace {

static_assert(kJsonPadding >= simdjson::SIMDJSON_PADDING);

using simdjson::dom::element;

std::optional<std::string_view> stringOf(element value) {
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS)
        return std::nullopt;
    return text;
}

struct Line {
    std::string_view type;
    std::optional<std::string_view> cwd;
    std::optional<std::string_view> timestamp;
    std::optional<std::string_view> customTitle;
    std::optional<std::string_view> summary;
    std::optional<element> message;
    bool isAside = false; ///< said by the program itself, or to an agent of its own
};

Line lineOf(simdjson::dom::object object) {
    Line line;
    for (const auto& [key, value] : object) {
        if (key == "type")
            line.type = stringOf(value).value_or("");
        else if (key == "cwd")
            line.cwd = stringOf(value);
        else if (key == "timestamp")
            line.timestamp = stringOf(value);
        else if (key == "customTitle")
            line.customTitle = stringOf(value);
        else if (key == "summary")
            line.summary = stringOf(value);
        else if (key == "message")
            line.message = value;
        else if (key == "isMeta" || key == "isSidechain")
            line.isAside = line.isAside || (value.is_bool() && bool(value));
    }
    return line;
}

/// A message's content is a text, or a list of blocks of which some are texts.
template <typename Use>
void forEachText(element message, Use use) {
    element content;
    if (message["content"].get(content) != simdjson::SUCCESS)
        return;
    if (const auto text = stringOf(content))
        return use(*text);
    simdjson::dom::array blocks;
    if (content.get(blocks) != simdjson::SUCCESS)
        return;
    for (const element block : blocks) {
        std::string_view type;
        std::string_view text;
        if (block["type"].get(type) == simdjson::SUCCESS && type == "text" &&
            block["text"].get(text) == simdjson::SUCCESS)
            use(text);
    }
}

void deliver(const Line& line, const TranscriptSink& sink) {
    const auto give = [&](TranscriptField field, const std::optional<std::string_view>& text) {
        if (text)
            sink.text(sink.context, field, text->data(), text->size());
    };
    give(TranscriptField::cwd, line.cwd);
    give(TranscriptField::timestamp, line.timestamp);
    if (line.type == "custom-title")
        give(TranscriptField::title, line.customTitle);
    else if (line.type == "summary")
        give(TranscriptField::title, line.summary);
    const bool isUser = line.type == "user";
    if ((isUser || line.type == "assistant") && line.message && !line.isAside) {
        const auto field = isUser ? TranscriptField::userWords : TranscriptField::agentWords;
        forEachText(*line.message, [&](std::string_view text) { give(field, text); });
    }
}

} // namespace

void* newTranscriptReader() noexcept {
    try {
        return new simdjson::dom::parser;
    } catch (...) {
        return nullptr;
    }
}

void deleteTranscriptReader(void* reader) noexcept {
    delete static_cast<simdjson::dom::parser*>(reader);
}

bool readTranscriptLine(void* reader, const char* line, std::size_t size,
                        const TranscriptSink& sink) noexcept {
    try {
        simdjson::dom::object object;
        if (static_cast<simdjson::dom::parser*>(reader)->parse(line, size, false).get(object) !=
            simdjson::SUCCESS)
            return false;
        deliver(lineOf(object), sink);
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace selvane::module
