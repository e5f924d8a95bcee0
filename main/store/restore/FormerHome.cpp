// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/FormerHome.h"

#include <algorithm>

#include "model/ByteText.h"
#include "store/SessionHandover.h"

namespace selvane {
namespace {

constexpr std::size_t kLongestHome = 512; ///< bytes
constexpr std::size_t kMostHomes = 1024;

/// How many folders are above.
std::ptrdiff_t depthOf(std::string_view path) {
    return std::count(path.begin(), path.end(), '/');
}

std::string_view lastOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

} // namespace

FormerHome::FormerHome(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        if (!path.starts_with('/'))
            m_paths.push_back("/" + path);
    }
}

void FormerHome::read(std::string_view text) {
    constexpr std::string_view kBefore = "\"'`@=:, \t\r\n()<>";
    constexpr std::string_view kAfter = "/\"'\n";
    for (const std::string& path : m_paths) {
        for (std::size_t at = text.find(path); at != text.npos; at = text.find(path, at + 1)) {
            const std::size_t end = at + path.size();
            if (end < text.size() && kAfter.find(text[end]) == kAfter.npos)
                continue;
            const std::size_t first = at > kLongestHome ? at - kLongestHome : 0;
            std::string_view home = text.substr(first, at - first);
            if (const std::size_t before = home.find_last_of(kBefore); before != home.npos)
                home.remove_prefix(before + 1);
            else if (first > 0)
                continue;
            if (home.size() > 1 && home.starts_with('/') && home.find("/../") == home.npos &&
                (m_seen.size() < kMostHomes || m_seen.contains(home)))
                ++m_seen[std::string(home)];
        }
    }
}

std::filesystem::path FormerHome::mostLikely() const {
    const auto most = std::ranges::max_element(m_seen, {}, [](const auto& seen) { return seen.second; });
    return most == m_seen.end() ? std::filesystem::path() : std::filesystem::path(most->first);
}

PathText pathTextIn(RestorePart::Kind kind, std::string_view below) {
    using enum RestorePart::Kind;
    if (kind == account) {
        const bool isRecord = below.starts_with("claude-code-sessions/") && depthOf(below) == 3 &&
                              isSessionRecord(lastOf(below));
        return isRecord || below == "claude_desktop_config.json" ? PathText::json : PathText::none;
    }
    if (below == "CLAUDE.md")
        return PathText::rules;
    const bool isPlugin = below.starts_with("plugins/") && depthOf(below) == 1 && below.ends_with(".json");
    const bool isQueued =
        below.starts_with(kSessionQueue) && depthOf(below) == 1 && isSessionRecord(lastOf(below));
    const bool isSetting =
        below == "settings.json" || below == "settings.local.json" || below == ".claude.json";
    return isPlugin || isQueued || isSetting || below.empty() ? PathText::json : PathText::none;
}

std::string movedText(const std::string& text, PathText kind, const std::vector<PathMove>& moves) {
    if (kind == PathText::none || moves.empty() || !isUtf8(text))
        return text;
    if (kind == PathText::json)
        return withMovedPaths(text, moves);
    std::string result;
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
        if (line.starts_with("@/"))
            result += "@" + movedPath(line.substr(1), moves).native();
        else
            result += line;
        if (end != std::string_view::npos)
            result += '\n';
    }
    return result;
}

} // namespace selvane
