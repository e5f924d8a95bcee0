// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHeaderBegin = "<!-- Regole condivise dal profilo \"";
constexpr std::string_view kHeaderInclude = "\" (gestito da Selvane) -->\n@";
constexpr std::string_view kHeaderEnd = "\n\n# Regole specifiche di questo profilo\n\n";

/// Rules that include the source's: Claude Code reads a line beginning with "@" as an include.
std::string extendTemplate(const Profile& source, std::string_view own) {
    std::string result(kHeaderBegin);
    result += source.meta.name;
    result += kHeaderInclude;
    result += source.url(Component::claudeMd).string();
    result += kHeaderEnd;
    result += own;
    return result;
}

struct Span {
    std::size_t begin = 0;
    std::size_t size = 0;

    std::size_t end() const { return begin + size; }
};

/// Ends the text with a line break if something follows it.
std::string asLines(std::string text, bool isFollowed) {
    if (isFollowed && !text.empty() && !text.ends_with('\n'))
        text += '\n';
    return text;
}

/// Finds the header written by `extendTemplate`, even if the source has been renamed since or an editor has
/// trimmed the blank lines after it.
std::optional<Span> headerIn(std::string_view text, const Profile& source) {
    const std::size_t begin = text.find(kHeaderBegin);
    if (begin == text.npos)
        return std::nullopt;
    const std::size_t include = text.find(kHeaderInclude, begin);
    if (include == text.npos || text.find('\n', begin) < include)
        return std::nullopt;
    std::size_t end = include + kHeaderInclude.size();
    const std::string path = source.url(Component::claudeMd).string();
    const std::string_view heading = kHeaderEnd.substr(0, kHeaderEnd.size() - 2);
    if (!text.substr(end).starts_with(path + std::string(heading)))
        return std::nullopt;
    end += path.size() + heading.size();
    for (int lineEnds = 0; lineEnds < 2 && text.substr(end).starts_with('\n'); ++lineEnds)
        ++end;
    return Span{begin, end - begin};
}

/// The text in `file`; nothing if nothing is there, or something that has no text, such as a folder.
std::optional<std::string> rulesIn(const fs::path& file) {
    try {
        return FileManager().readIfPresent(file);
    } catch (const fs::filesystem_error& error) {
        if (error.code() == std::errc::invalid_argument || error.code() == std::errc::is_a_directory)
            return std::nullopt;
        throw;
    }
}

} // namespace

void ProfileStore::applyClaudeMd(ShareMode mode, const Profile& to, const Profile& from,
                                 const FileManager& files) {
    const fs::path own = to.url(Component::claudeMd);
    const fs::path origin = from.url(Component::claudeMd);
    if (mode == ShareMode::shared)
        files.createLink(origin, own);
    else if (mode == ShareMode::separate && files.isPresent(origin))
        files.copy(files.resolved(origin), own);
    else if (mode == ShareMode::extend)
        files.write(own, extendTemplate(from, ""));
}

void ProfileStore::changeClaudeMd(ShareMode mode, const Profile& profile, const Profile& source) {
    const fs::path own = profile.url(Component::claudeMd);
    const fs::path origin = source.url(Component::claudeMd);
    m_files.recoverReplaced(own);
    const bool isFile = m_files.isRegularFile(own);
    const std::string ownText = isFile ? m_files.read(own) : std::string();
    const auto header = headerIn(ownText, source);
    const auto writeOwn = [&](const std::string& text) {
        m_files.replaceTrashing(own, [&](const fs::path& temporary) {
            m_files.write(temporary, text);
            if (isFile)
                m_files.setMode(temporary, m_files.mode(own).value_or(0600));
        });
    };

    switch (mode) {
    case ShareMode::shared:
        m_files.replaceTrashing(own,
                                [&](const fs::path& temporary) { m_files.createLink(origin, temporary); });
        break;
    case ShareMode::extend:
        // Remove only a header at the very top; the rest is the profile's own.
        writeOwn(
            extendTemplate(source, header && header->begin == 0 ? ownText.substr(header->size) : ownText));
        break;
    case ShareMode::separate: {
        // If the source has no rules, a profile without rules stays without.
        const auto sourceText = rulesIn(origin);
        if (!m_files.exists(own) && !sourceText)
            break;
        std::string text = ownText;
        if (!isFile)
            text = sourceText.value_or("");
        else if (header)
            text.replace(header->begin, header->size,
                         asLines(sourceText.value_or(""), header->end() < text.size()));
        writeOwn(text);
        break;
    }
    case ShareMode::none:
        if (m_files.exists(own))
            m_files.moveToTrash(own);
        break;
    }
}

} // namespace selvane
