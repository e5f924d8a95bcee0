// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// The paths in lines like "@~/.claude/rules.md", with which one file of instructions includes another, as
/// they are written there. A path in a block of code counts too, although Claude Code doesn't follow it.
std::vector<std::string> includedPaths(std::string_view text);

/// The files that Claude Code reads for a CLAUDE.md or for rules: they themselves and what they include, with
/// links resolved. Files that don't exist yet count as well. What this finds decides what a profile keeps
/// out, so everything here throws if something is there, or may be, but can't be looked at or read.
class Instructions {
public:
    explicit Instructions(std::filesystem::path home) : m_home(std::move(home)) {}

    /// Adds a file and what it includes.
    void addFile(const std::filesystem::path& file) { addFile(file, 0); }
    /// Adds a rule, or all of a folder's. A link to a folder stands for everything that is or will be in it.
    void addRules(const std::filesystem::path& rules);
    /// Adds what a link to `rule`, a rule or a folder of rules, would stand for.
    void addLinkTo(const std::filesystem::path& rule);

    bool hasFile(const std::filesystem::path& file) const;
    /// Whether a link leads to this folder.
    bool hasFolder(const std::filesystem::path& folder) const;

    /// Whether Claude Code takes a file of this name for a rule.
    static bool isRule(std::string_view name) { return name.ends_with(".md"); }

private:
    void addFile(const std::filesystem::path& file, int depth);

    std::filesystem::path m_home;
    std::set<std::filesystem::path> m_files;
    std::set<std::filesystem::path> m_folders; ///< that links lead to
    std::set<std::filesystem::path> m_listed;
};

/// `path` with all links resolved, as far as it exists. Throws if that can't be determined.
std::filesystem::path resolvedAsFarAsPossible(std::filesystem::path path);
/// Whether a folder is at `path`, or where the link there leads. Throws if that can't be determined.
bool leadsToFolder(const std::filesystem::path& path);

} // namespace selvane
