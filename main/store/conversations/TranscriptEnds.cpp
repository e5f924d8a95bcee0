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

/// The line around a position.
std::string_view lineAt(std::string_view text, std::size_t position) {
    const std::size_t before = position == 0 ? text.npos : text.rfind('\n', position - 1);
    const std::size_t begin = before == text.npos ? 0 : before + 1;
    return text.substr(begin, text.find('\n', position) - begin);
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
    readTail(tail, summary);
    if (!summary.hasGivenTitle && !isSmall)
        takeLastTitle(head, summary);
    readHead(head, summary);
    return summary;
}

/// The last title that a line gives.
bool TranscriptEnds::takeLastTitle(std::string_view text, TranscriptSummary& summary) {
    // Only as a key or a value: in other texts, the quotation marks have a backslash before them.
    static const TextFinder kFinders[] = {TextFinder("\"custom-title\"", TextFinder::Kind::exact),
                                          TextFinder("\"summary\"", TextFinder::Kind::exact)};
    std::vector<std::size_t> positions;
    for (const TextFinder& finder : kFinders) {
        for (std::size_t at = finder.find(text); at != text.npos; at = finder.find(text, at + 1))
            positions.push_back(at);
    }
    std::sort(positions.rbegin(), positions.rend());
    for (const std::size_t position : positions) {
        const auto line = m_lines.read(lineAt(text, position));
        if (!line || !line->title || text::trimmed(*line->title).empty())
            continue;
        summary.title = beginning(*line->title);
        summary.hasGivenTitle = true;
        return true;
    }
    return false;
}

void TranscriptEnds::readTail(std::string_view tail, TranscriptSummary& summary) {
    takeLastTitle(tail, summary);
    static const TextFinder kTime("\"timestamp\"", TextFinder::Kind::exact);
    for (std::string_view rest = tail; !rest.empty();) {
        const std::string_view line = lineAt(rest, rest.size() - 1);
        rest.remove_suffix(std::min(line.size() + 1, rest.size()));
        if (kTime.find(line) == line.npos)
            continue;
        const auto known = m_lines.read(line);
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
