// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/TranscriptEnds.h"

#include <algorithm>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/text/Text.h"
#include "platform/text/TextFinder.h"

namespace selvane {
namespace {

using text::TextFinder;

constexpr std::size_t kLongestTitle = 400; ///< bytes of the user's words that are enough for one

/// How many bytes were read, fewer than asked for at the end of the file or after an error.
std::size_t readAt(const files::Descriptor& file, char* bytes, std::size_t count, off_t offset) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t read =
            ::pread(file.get(), bytes + done, count - done, offset + static_cast<off_t>(done));
        if (read <= 0 && !(read < 0 && errno == EINTR))
            break;
        done += read > 0 ? static_cast<std::size_t>(read) : 0;
    }
    return done;
}

/// What is enough of a line to see whether it gives a title: such lines are short, or say so in front.
std::string_view tellingPart(std::string_view line) {
    constexpr std::size_t kShort = 2048;
    constexpr std::size_t kFront = 256;
    return line.size() <= kShort ? line : line.substr(0, kFront);
}

/// The beginning of a text, on one line, without breaking a character.
std::string beginning(std::string_view text) {
    text = text::trimmed(text);
    std::size_t size = std::min(text.size(), kLongestTitle);
    while (size < text.size() && size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
        --size;
    std::string result(text.substr(0, size));
    std::replace_if(
        result.begin(), result.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return result;
}

/// A message that begins with a tag tells of a command, or was put in by a program.
bool areOwnWords(std::string_view words) {
    const std::string_view trimmed = text::trimmed(words);
    return !trimmed.empty() && !trimmed.starts_with('<');
}

} // namespace

std::optional<TranscriptSummary> TranscriptEnds::read(const std::string& file) {
    // Non-blocking, so that a FIFO of such a name can't block the program.
    const files::Descriptor open(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!open || ::fstat(open.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    m_buffer.resize(2 * kEnd + kJsonPadding);
    TranscriptSummary summary;
    summary.lastActivity = static_cast<double>(status.st_mtime);
    summary.size = static_cast<std::int64_t>(status.st_size);
    const bool isSmall = status.st_size <= static_cast<off_t>(2 * kEnd);
    const std::size_t first =
        readAt(open, m_buffer.data(), isSmall ? static_cast<std::size_t>(status.st_size) : kEnd, 0);
    std::string_view head(m_buffer.data(), first);
    std::string_view tail = head;
    if (!isSmall) {
        const std::size_t last =
            readAt(open, m_buffer.data() + kEnd, kEnd, status.st_size - static_cast<off_t>(kEnd));
        tail = {m_buffer.data() + kEnd, last};
        tail.remove_prefix(std::min(tail.find('\n'), tail.size())); // part of a line
    }
    splitLines(tail);
    takeLastTitle(summary);
    readTail(summary);
    if (!summary.hasGivenTitle && !isSmall) {
        splitLines(head);
        takeLastTitle(summary);
    }
    readHead(head, summary);
    return summary;
}

void TranscriptEnds::splitLines(std::string_view text) {
    m_split.clear();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        m_split.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

/// The last title that one of the split lines gives.
void TranscriptEnds::takeLastTitle(TranscriptSummary& summary) {
    // Only as a key or a value: in other texts, the quotation marks have a backslash before them.
    static const TextFinder kFinders[] = {TextFinder("\"custom-title\"", TextFinder::Kind::exact),
                                          TextFinder("\"summary\"", TextFinder::Kind::exact)};
    for (auto split = m_split.rbegin(); split != m_split.rend(); ++split) {
        const std::string_view part = tellingPart(*split);
        if (std::ranges::all_of(kFinders, [&](const auto& finder) { return finder.find(part) == part.npos; }))
            continue;
        const auto line = m_lines.read(*split);
        if (!line || !line->title || text::trimmed(*line->title).empty())
            continue;
        summary.title = beginning(*line->title);
        summary.hasGivenTitle = true;
        return;
    }
}

/// What the last of the split lines with a time tells.
void TranscriptEnds::readTail(TranscriptSummary& summary) {
    static const TextFinder kTime("\"timestamp\"", TextFinder::Kind::exact);
    for (auto line = m_split.rbegin(); line != m_split.rend(); ++line) {
        if (kTime.find(*line) == line->npos)
            continue;
        const auto known = m_lines.read(*line);
        if (!known || !known->time)
            continue;
        summary.lastActivity = *known->time;
        summary.cwd = known->cwd.value_or("");
        return;
    }
}

/// The working folder where it was begun, and the user's first words unless there is a title.
void TranscriptEnds::readHead(std::string_view head, TranscriptSummary& summary) {
    bool knowsFolder = false;
    while (!head.empty() && (!knowsFolder || summary.title.empty())) {
        const std::size_t end = head.find('\n');
        const auto line = m_lines.read(head.substr(0, end));
        head.remove_prefix(end == head.npos ? head.size() : end + 1);
        if (!line)
            continue;
        if (!knowsFolder && line->cwd)
            summary.cwd = *line->cwd;
        knowsFolder = knowsFolder || line->cwd;
        if (!summary.title.empty() || !line->isUser)
            continue;
        const auto words = std::find_if(line->words.begin(), line->words.end(), areOwnWords);
        if (words != line->words.end())
            summary.title = beginning(*words);
    }
}

} // namespace selvane
