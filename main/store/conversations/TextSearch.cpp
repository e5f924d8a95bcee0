// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/TextSearch.h"

#include <cstring>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/Progress.h"
#include "platform/json/TranscriptLine.h"
#include "platform/process/Parallel.h"
#include "platform/text/Text.h"
#include "platform/text/TextFinder.h"

namespace selvane {
namespace {

constexpr std::size_t kPiece = std::size_t{256} << 10; ///< bytes that are read at once
constexpr std::size_t kLongestLine = std::size_t{16} << 20;
constexpr std::size_t kAround = 60; ///< bytes of an excerpt on either side

bool isInsideCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// What is around `size` bytes of a text, without half characters.
TextHit excerptOf(std::string_view text, std::size_t begin, std::size_t size) {
    std::size_t from = begin - std::min(begin, kAround);
    std::size_t to = std::min(text.size(), begin + size + kAround);
    while (from > 0 && isInsideCharacter(text[from]))
        --from;
    while (to < text.size() && isInsideCharacter(text[to]))
        ++to;
    std::string excerpt(text.substr(from, to - from));
    for (char& c : excerpt)
        c = c == '\n' || c == '\r' || c == '\t' ? ' ' : c;
    return {.excerpt = std::move(excerpt), .begin = begin - from, .size = size};
}

/// Where a text stands once so many bytes of its searchable form have passed, with the marks that belong
/// there.
std::size_t positionIn(std::string_view text, std::size_t searchable) {
    std::size_t at = 0;
    for (std::size_t passed = 0; at < text.size();) {
        std::size_t size = 1;
        while (at + size < text.size() && isInsideCharacter(text[at + size]))
            ++size;
        passed += text::searchable(text.substr(at, size)).size();
        if (passed > searchable)
            break;
        at += size;
    }
    return at;
}

/// Reads a file piece by piece, each made of whole lines.
class Lines {
public:
    /// The next lines; empty at the end or when the file can't be read on. `kJsonPadding` bytes follow them.
    std::string_view next() {
        while (true) {
            std::memmove(m_bytes.data(), m_bytes.data() + m_used, m_filled - m_used);
            m_filled -= std::exchange(m_used, 0);
            if (m_filled >= kLongestLine) { // leave it out
                m_filled = 0;
                m_skips = true;
            }
            m_bytes.resize(std::max(m_bytes.size(), m_filled + kPiece + kJsonPadding));
            const ssize_t count = m_isAtEnd ? 0 : ::read(m_file.get(), m_bytes.data() + m_filled, kPiece);
            if (count < 0 && errno == EINTR)
                continue;
            m_isAtEnd = m_isAtEnd || (count >= 0 && static_cast<std::size_t>(count) < kPiece);
            if (count <= 0) {
                m_used = std::exchange(m_skips, false) ? 0 : m_filled;
                m_filled = m_used;
                return {m_bytes.data(), m_used};
            }
            const std::size_t before = m_filled;
            m_filled += static_cast<std::size_t>(count);
            const std::string_view read(m_bytes.data() + before, static_cast<std::size_t>(count));
            const std::size_t end = read.rfind('\n');
            if (end == read.npos)
                continue;
            m_used = before + end + 1;
            const std::size_t begin = std::exchange(m_skips, false) ? before + read.find('\n') + 1 : 0;
            if (begin < m_used)
                return {m_bytes.data() + begin, m_used - begin};
        }
    }

    bool open(const std::string& file) {
        m_filled = m_used = 0;
        m_skips = m_isAtEnd = false;
        m_file = files::Descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        struct stat status = {};
        return m_file && ::fstat(m_file.get(), &status) == 0 && S_ISREG(status.st_mode);
    }

private:
    files::Descriptor m_file;
    std::vector<char> m_bytes = std::vector<char>(kPiece + kJsonPadding);
    std::size_t m_filled = 0;
    std::size_t m_used = 0; ///< of them, by the lines last returned
    bool m_skips = false;   ///< inside a line that is too long
    bool m_isAtEnd = false; ///< the last read found less than it asked for
};

/// What one thread needs.
class Searcher {
public:
    Searcher(const std::string& phrase, Progress& progress)
        : m_phrase(phrase), m_finder(phrase, text::TextFinder::Kind::searchable), m_progress(progress) {}

    std::optional<TextHit> search(const Conversation& conversation) {
        std::vector<std::pair<std::string, std::int64_t>> searched; // names and sizes
        for (const ConversationPlace& place : conversation.places) {
            for (const std::string& file : place.transcripts) {
                if (conversation.places.size() > 1) {
                    const std::pair known(file.substr(file.rfind('/') + 1), sizeOf(file));
                    if (std::find(searched.begin(), searched.end(), known) != searched.end())
                        continue; // a copy, in another profile
                    searched.push_back(known);
                }
                if (auto hit = searchFile(file))
                    return hit;
                m_progress.advance(1, 0);
            }
        }
        return std::nullopt;
    }

private:
    static std::int64_t sizeOf(const std::string& file) {
        struct stat status = {};
        return ::stat(file.c_str(), &status) == 0 ? static_cast<std::int64_t>(status.st_size) : -1;
    }

    std::optional<TextHit> searchFile(const std::string& file) {
        if (!m_lines.open(file))
            return std::nullopt;
        for (std::string_view lines = m_lines.next(); !lines.empty() && !m_progress.isCancelled();
             lines = m_lines.next()) {
            m_progress.advance(0, static_cast<std::int64_t>(lines.size()));
            if (auto hit = searchLines(lines))
                return hit;
        }
        return std::nullopt;
    }

    std::optional<TextHit> searchLines(std::string_view lines) {
        for (std::size_t at = m_finder.find(lines); at != lines.npos;) {
            const std::size_t before = lines.rfind('\n', at);
            const std::size_t begin = before == lines.npos ? 0 : before + 1;
            const std::size_t end = std::min(lines.find('\n', at), lines.size());
            if (auto hit = searchLine(lines.substr(begin, end - begin)))
                return hit;
            at = end < lines.size() ? m_finder.find(lines, end + 1) : lines.npos;
        }
        return std::nullopt;
    }

    std::optional<TextHit> searchLine(std::string_view line) {
        const auto read = m_reader.read(line);
        if (!read)
            return std::nullopt;
        for (const std::string& words : read->words) {
            const std::string plain = text::searchable(words);
            const std::size_t begin = plain.find(m_phrase);
            if (begin == plain.npos)
                continue;
            const std::size_t from = positionIn(words, begin);
            return excerptOf(words, from, positionIn(words, begin + m_phrase.size()) - from);
        }
        return std::nullopt;
    }

    const std::string& m_phrase;
    const text::TextFinder m_finder;
    Progress& m_progress;
    Lines m_lines;
    TranscriptLineReader m_reader;
};

} // namespace

bool searchTexts(const ConversationList& list, const std::vector<std::uint32_t>& among,
                 std::string_view phrase, Progress& progress,
                 const std::function<void(const TextHit&)>& found) {
    const std::string plain = text::searchable(phrase);
    if (text::trimmed(plain).empty())
        return true;
    std::mutex mutex;
    inParallel(among.size(), [&] {
        return [&, searcher = std::make_shared<Searcher>(plain, progress)](std::size_t number) {
            if (progress.isCancelled())
                return;
            auto hit = searcher->search(list.conversations[among[number]]);
            if (!hit)
                return;
            hit->conversation = among[number];
            const std::lock_guard guard(mutex);
            if (!progress.isCancelled())
                found(*hit);
        };
    });
    return !progress.isCancelled();
}

} // namespace selvane
