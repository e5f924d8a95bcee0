// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Main/Arguments.h"

#include <algorithm>

#include "model/LauncherError.h"
#include "platform/text/Text.h"

namespace selvane::CLI {
namespace {

std::vector<std::string_view> pieces(std::string_view text, char separator) {
    std::vector<std::string_view> result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0)
            result.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

} // namespace

Profile profile(const std::string& id, const ProfileStore& store) {
    auto found = store.profile(id);
    if (!found)
        throw LauncherError("Profilo sconosciuto: " + field(id));
    return std::move(*found);
}

Profile profile(const Call& call) {
    if (call.arguments.size() < 2)
        throw LauncherError("Specifica l'id del profilo");
    return profile(call.arguments[1], call.store);
}

std::pair<Component, ShareMode> assignment(const std::string& text) {
    const auto parts = pieces(text, '=');
    if (parts.size() == 2) {
        const auto known = component(parts[0]);
        const auto mode = shareMode(parts[1]);
        if (known && mode)
            return {*known, *mode};
    }
    throw LauncherError("Modalità non valida: " + field(text));
}

void requireArguments(const Call& call, std::size_t least) {
    if (call.arguments.size() >= least)
        return;
    for (const Command& command : commands()) {
        if (command.word == call.arguments[0])
            throwUsage(usage(command));
    }
}

std::string usage(const Command& command) {
    const std::string word(command.word);
    return command.syntax.empty() ? word : word + " " + std::string(command.syntax);
}

void throwUsage(std::string_view usage) {
    throw LauncherError("Uso: " + std::string(usage));
}

std::string field(std::string_view text) {
    return text::singleLine(text);
}

} // namespace selvane::CLI
