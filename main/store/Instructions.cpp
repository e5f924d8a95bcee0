// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/Instructions.h"

#include "platform/files/Descriptor.h"
#include "platform/files/FileManager.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// Claude Code follows fewer includes in a row than this.
constexpr int kDeepestInclude = 8;
constexpr std::size_t kLongestInstructions = 4U << 20;
constexpr int kMostLinks = 40;

/// What a file of instructions holds; nothing if nothing is there, or something that holds none: a folder, a
/// pipe, or far too much.
std::string instructionsIn(const fs::path& file) {
    try {
        return FileManager().readIfPresent(file, kLongestInstructions).value_or("");
    } catch (const fs::filesystem_error& error) {
        if (error.code() == std::errc::is_a_directory || error.code() == std::errc::invalid_argument ||
            error.code() == std::errc::value_too_large)
            return {};
        throw;
    }
}

bool isBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

} // namespace

std::vector<std::string> includedPaths(std::string_view text) {
    std::vector<std::string> paths;
    for (std::size_t at = text.find('@'); at != text.npos; at = text.find('@', at + 1)) {
        if (at > 0 && !isBlank(text[at - 1]))
            continue;
        std::string path;
        for (std::size_t i = at + 1; i < text.size() && !isBlank(text[i]) && text[i] != '#'; ++i) {
            if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == ' ')
                ++i;
            path += text[i];
        }
        if (!path.empty())
            paths.push_back(std::move(path));
    }
    return paths;
}

fs::path resolvedAsFarAsPossible(fs::path path) {
    const FileManager files;
    for (int links = 0; links < kMostLinks && !files.isPresent(path); ++links) {
        const auto target = files.linkTarget(path);
        if (!target)
            break;
        path = path.parent_path() / *target;
    }
    std::error_code error;
    fs::path resolved = fs::weakly_canonical(path, error);
    if (error && !files::meansMissing(error.value()))
        files::fail("look up", path, error.value());
    return error ? path.lexically_normal() : resolved;
}

bool leadsToFolder(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error && !files::meansMissing(error.value()))
        files::fail("look up", path, error.value());
    return fs::is_directory(status);
}

void Instructions::addFile(const fs::path& file, int depth) {
    const fs::path resolved = resolvedAsFarAsPossible(file);
    if (!m_files.insert(resolved).second || depth == kDeepestInclude)
        return;
    for (const std::string& path : includedPaths(instructionsIn(resolved))) {
        if (path.starts_with("~/")) {
            addFile(m_home / path.substr(2), depth + 1);
            continue;
        }
        // Of a linked file: beside the link as well as beside the file itself.
        addFile(file.parent_path() / path, depth + 1);
        addFile(resolved.parent_path() / path, depth + 1);
    }
}

void Instructions::addRules(const fs::path& rules) {
    const FileManager files;
    if (!leadsToFolder(rules)) {
        if (isRule(rules.filename().native()))
            addFile(rules);
        return;
    }
    if (files.linkTarget(rules))
        m_folders.insert(resolvedAsFarAsPossible(rules));
    if (!m_listed.insert(resolvedAsFarAsPossible(rules)).second)
        return;
    for (const std::string& name : files.entriesIfPresent(rules))
        addRules(rules / name);
}

void Instructions::addLinkTo(const fs::path& rule) {
    if (leadsToFolder(rule))
        m_folders.insert(resolvedAsFarAsPossible(rule));
    addRules(rule);
}

bool Instructions::hasFile(const fs::path& file) const {
    return m_files.contains(resolvedAsFarAsPossible(file));
}

bool Instructions::hasFolder(const fs::path& folder) const {
    return m_folders.contains(resolvedAsFarAsPossible(folder));
}

} // namespace selvane
