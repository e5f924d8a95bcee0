// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/SettingsPaths.h"

#include <algorithm>
#include <vector>

#include "model/ByteText.h"
#include "platform/json/Json.h"

namespace selvane {
namespace {

struct Replacement {
    std::string from;
    std::string to;
};

enum class Where { anywhere, atBeginning };

/// Whether a path can go on with this character, so that what follows doesn't begin one.
bool isInsidePath(char c) {
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return isLetter || c == '_' || c == '-' || c == '.' || static_cast<unsigned char>(c) >= 0x80;
}

/// Replaces in one pass: never looks again at text it has put in, even if that matches too.
std::string replaced(std::string_view text, const std::vector<Replacement>& replacements, Where where) {
    std::string result;
    char before = ' ';
    while (!text.empty()) {
        auto found =
            std::find_if(replacements.begin(), replacements.end(),
                         [&](const Replacement& candidate) { return text.starts_with(candidate.from); });
        if (where == Where::atBeginning && isInsidePath(before))
            found = replacements.end();
        before = found == replacements.end() ? text.front() : found->from.back();
        result += found == replacements.end() ? text.substr(0, 1) : std::string_view(found->to);
        text.remove_prefix(found == replacements.end() ? 1 : found->from.size());
    }
    return result;
}

/// The text as written between the quotes of a JSON string.
std::string jsonEscaped(const std::string& bytes, bool asciiOnly) {
    const std::string quoted = Json(textFromBytes(bytes)).dump(-1, ' ', asciiOnly);
    return quoted.substr(1, quoted.size() - 2);
}

bool needsEscapes(const std::string& text) {
    return std::any_of(text.begin(), text.end(), [](char character) {
        return character == '"' || character == '\\' || static_cast<unsigned char>(character) < ' ';
    });
}

/// The ways a path can be written in a JSON string.
std::vector<std::string> jsonSpellings(const std::filesystem::path& path) {
    std::vector<std::string> spellings = {jsonEscaped(path.string(), false)};
    // Include the raw bytes even if they aren't UTF-8, unless they could end the string and begin another.
    for (const std::string& spelling : {needsEscapes(path.string()) ? spellings.front() : path.string(),
                                        jsonEscaped(path.string(), true)}) {
        if (spelling != spellings.front())
            spellings.push_back(spelling);
    }
    return spellings;
}

} // namespace

std::string withRewrittenPaths(std::string_view text, const Profile& from, const Profile& to) {
    const std::string target = jsonEscaped(to.configDir.string(), false);
    std::vector<Replacement> replacements;
    for (const std::string& source : jsonSpellings(from.configDir)) {
        for (const std::string end : {"/", "\""})
            replacements.push_back({source + end, target + end});
    }
    if (from.isDefault())
        replacements.push_back({"~/.claude/", target + "/"});
    return replaced(text, replacements, Where::anywhere);
}

std::string withMovedPaths(std::string_view json, const std::vector<PathMove>& moves) {
    std::vector<Replacement> replacements;
    for (const PathMove& move : moves) {
        const std::string target = jsonEscaped(move.to.string(), false);
        for (const std::string& source : jsonSpellings(move.from)) {
            for (const std::string end : {"/", "\""})
                replacements.push_back({source + end, target + end});
        }
    }
    return replaced(json, replacements, Where::atBeginning);
}

std::filesystem::path movedPath(const std::filesystem::path& path, const std::vector<PathMove>& moves) {
    for (const PathMove& move : moves) {
        if (path == move.from)
            return move.to;
        if (path.native().starts_with(move.from.native() + "/"))
            return move.to.native() + path.native().substr(move.from.native().size());
    }
    return path;
}

} // namespace selvane
