// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <simdjson.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/Descriptor.h"
#include "platform/json/JsonNumbers.h"
#include "platform/json/JsonSurrogates.h"
#include "platform/services/Functions.h"
#include "platform/text/Decimal.h"

namespace selvane::module {

namespace {

constexpr off_t kLargestFile = off_t{256} * 1024 * 1024;

std::optional<std::size_t> sizeOfRegularFile(const files::Descriptor& file) {
    struct stat status {};
    if (!file || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kLargestFile)
        return std::nullopt;
    return static_cast<std::size_t>(status.st_size);
}

/// How many bytes were read, at most `size`.
std::optional<std::size_t> readBytes(const files::Descriptor& file, char* bytes, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count = ::read(file.get(), bytes + done, size - done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::optional<std::string_view> textOf(simdjson::dom::element value) {
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS)
        return std::nullopt;
    return text;
}

std::optional<double> numberOf(simdjson::dom::element value) {
    double number = 0;
    if (value.get(number) != simdjson::SUCCESS)
        return std::nullopt;
    return number;
}

struct Fields {
    std::optional<std::string_view> sessionId;
    std::optional<std::string_view> title;
    std::optional<std::string_view> cwd;
    std::optional<std::string_view> cliSessionId;
    std::optional<double> lastActivityAt;
    bool isArchived = false;
    std::vector<std::string_view> priorCliSessionIds;
};

void setTexts(std::vector<std::string_view>& texts, simdjson::dom::element value) {
    texts.clear();
    simdjson::dom::array elements;
    if (value.get(elements) != simdjson::SUCCESS)
        return;
    for (const simdjson::dom::element element : elements) {
        const auto text = textOf(element);
        if (!text) {
            texts.clear();
            return;
        }
        texts.push_back(*text);
    }
}

/// Each occurrence of a key is stored, so the last one counts.
Fields fieldsOf(simdjson::dom::object record) {
    Fields fields;
    for (const auto& [key, value] : record) {
        if (key == "sessionId")
            fields.sessionId = textOf(value);
        else if (key == "title")
            fields.title = textOf(value);
        else if (key == "cwd")
            fields.cwd = textOf(value);
        else if (key == "cliSessionId")
            fields.cliSessionId = textOf(value);
        else if (key == "lastActivityAt")
            fields.lastActivityAt = numberOf(value);
        else if (key == "isArchived")
            fields.isArchived = value.is_bool() && bool(value);
        else if (key == "priorCliSessionIds")
            setTexts(fields.priorCliSessionIds, value);
    }
    return fields;
}

void deliver(const Fields& fields, const SessionRecordSink& sink) {
    const auto text = [&](SessionField field, const std::optional<std::string_view>& value) {
        if (value)
            sink.text(sink.context, field, value->data(), value->size());
    };
    text(SessionField::sessionId, fields.sessionId);
    text(SessionField::title, fields.title);
    text(SessionField::cwd, fields.cwd);
    text(SessionField::cliSessionId, fields.cliSessionId);
    for (const std::string_view id : fields.priorCliSessionIds)
        text(SessionField::priorCliSessionId, id);
    if (fields.lastActivityAt)
        sink.lastActivity(sink.context, *fields.lastActivityAt);
    if (fields.isArchived)
        sink.archived(sink.context);
}

/// Rewrites in place the numbers that the parser refuses: a long integer as a double of nearly the same
/// value, a number too large for a double as null. Returns whether it found any.
bool replaceLargeNumbers(char* bytes, std::size_t size) {
    bool found = false;
    json::forEachNumber({bytes, size}, [&](std::size_t position, std::string_view number) {
        if (json::isPlainInteger(number))
            return;
        char* const place = bytes + position;
        if (!readDecimal(number).fits) {
            std::memset(place, ' ', number.size());
            std::string_view("null").copy(place, 4);
            found = true;
        } else if (number.find_first_of(".eE") == std::string_view::npos && number != "-0") {
            // With nineteen digits or more, a double can't show the last two.
            std::string_view("e2").copy(place + number.size() - 2, 2);
            found = true;
        }
    });
    return found;
}

class SessionReader {
public:
    bool read(const char* file, const SessionRecordSink& sink) {
        const auto size = load(file);
        if (!size)
            return false;
        const bool hasMark = std::string_view(m_buffer.data(), *size).starts_with("\xEF\xBB\xBF");
        const std::size_t mark = hasMark ? 3 : 0;
        return parse(m_buffer.data() + mark, *size - mark, sink);
    }

private:
    std::optional<std::size_t> load(const char* file) {
        // Non-blocking, so that a FIFO with the right name can't block the program.
        const files::Descriptor descriptor(::open(file, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        const auto size = sizeOfRegularFile(descriptor);
        if (!size)
            return std::nullopt;
        if (m_buffer.size() < *size + simdjson::SIMDJSON_PADDING)
            m_buffer.resize(*size + simdjson::SIMDJSON_PADDING);
        return readBytes(descriptor, m_buffer.data(), *size);
    }

    bool parse(char* bytes, std::size_t size, const SessionRecordSink& sink) {
        simdjson::dom::element document;
        auto error = m_parser.parse(bytes, size, false).get(document);
        if (error != simdjson::SUCCESS) {
            const bool hadLargeNumbers = replaceLargeNumbers(bytes, size);
            if (json::replaceLoneSurrogates(bytes, size) || hadLargeNumbers)
                error = m_parser.parse(bytes, size, false).get(document);
        }
        simdjson::dom::object record;
        if (error != simdjson::SUCCESS || document.get(record) != simdjson::SUCCESS)
            return false;
        const Fields fields = fieldsOf(record);
        if (!fields.sessionId)
            return false;
        deliver(fields, sink);
        return true;
    }

    simdjson::dom::parser m_parser;
    std::vector<char> m_buffer;
};

} // namespace

void* newSessionReader() noexcept {
    try {
        return new SessionReader;
    } catch (...) {
        return nullptr;
    }
}

void deleteSessionReader(void* reader) noexcept {
    delete static_cast<SessionReader*>(reader);
}

bool readSession(void* reader, const char* file, const SessionRecordSink& sink) noexcept {
    try {
        return reader != nullptr && static_cast<SessionReader*>(reader)->read(file, sink);
    } catch (...) {
        return false;
    }
}

bool isStrictJson(const char* bytes, std::size_t size) noexcept {
    try {
        thread_local simdjson::dom::parser parser; // its memory is reused for many texts
        return parser.parse(bytes, size).error() == simdjson::SUCCESS;
    } catch (...) {
        return false;
    }
}

} // namespace selvane::module
