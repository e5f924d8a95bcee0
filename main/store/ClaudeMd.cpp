// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHeaderBegin = "<!-- Regole condivise dal profilo \"";
constexpr std::string_view kHeaderInclude = "\" (gestito da Selvane) -->\n@";
constexpr std::string_view kHeaderEnd = "\n\n# Regole specifiche di questo profilo\n\n";

/// A file of rules that includes the source's: Claude Code reads the line that begins with "@" as an include.
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

/// A text that what follows it begins a new line after.
std::string asLines(std::string text, bool isFollowed) {
    if (isFollowed && !text.empty() && !text.ends_with('\n'))
        text += '\n';
    return text;
}

/// Where the header of `extendTemplate` stands in a text. It is found also when the source was renamed since,
/// or when an editor has trimmed the line ends behind it.
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

} // namespace

void ProfileStore::applyClaudeMd(ShareMode mode, const Profile& to, const Profile& from) {
    const fs::path own = to.url(Component::claudeMd);
    const fs::path origin = from.url(Component::claudeMd);
    if (mode == ShareMode::shared)
        m_files.createLink(origin, own);
    else if (mode == ShareMode::separate && m_files.isPresent(origin))
        m_files.copy(m_files.resolved(origin), own);
    else if (mode == ShareMode::extend)
        m_files.write(own, extendTemplate(from, ""));
}

void ProfileStore::changeClaudeMd(ShareMode mode, const Profile& profile, const Profile& source) {
    const fs::path own = profile.url(Component::claudeMd);
    const fs::path origin = source.url(Component::claudeMd);
    const bool isFile = m_files.isRegularFile(own);
    // What can't be read counts as empty: the file itself goes to the Trash whole.
    const std::string ownText = isFile ? m_files.readIfPossible(own).value_or("") : std::string();
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
        // Only a header at the very top is ours to take off; the rest is the profile's own part.
        writeOwn(
            extendTemplate(source, header && header->begin == 0 ? ownText.substr(header->size) : ownText));
        break;
    case ShareMode::separate: {
        // Unreadable rules of the source count as none; without any, a profile that had none stays without.
        const auto sourceText = m_files.readIfPossible(origin);
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
