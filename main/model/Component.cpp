// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/Component.h"

#include <algorithm>

namespace selvane {
namespace {

using enum ShareMode;

constexpr std::array kCollectionModes = {shared, separate, none};
constexpr std::array kClaudeMdModes = {extend, shared, separate, none};
constexpr std::array kImportModes = {separate, none};

struct Traits {
    std::string_view rawValue;
    std::string_view title;
    std::string_view symbol;
    bool isCollection;
    ShareMode defaultMode;
    std::span<const ShareMode> allowedModes;
};

constexpr std::array<Traits, kComponents.size()> kTraits = {{
    {"skills", "Skill", "wand.and.stars", true, shared, kCollectionModes},
    {"agents", "Agenti", "person.2", true, shared, kCollectionModes},
    {"commands", "Comandi", "command", true, shared, kCollectionModes},
    {"output-styles", "Stili di output", "text.quote", true, shared, kCollectionModes},
    {"rules", "Regole (rules/)", "list.bullet.rectangle", true, shared, kCollectionModes},
    {"CLAUDE.md", "Regole globali (CLAUDE.md)", "doc.text", false, extend, kClaudeMdModes},
    {"settings", "Impostazioni e hook", "gearshape", false, separate, kImportModes},
    {"plugins", "Plugin", "puzzlepiece.extension", false, separate, kImportModes},
    {"mcp", "Server MCP", "server.rack", false, separate, kImportModes},
}};

const Traits& traits(Component component) {
    return kTraits.at(static_cast<std::size_t>(component));
}

} // namespace

std::string_view rawValue(Component component) {
    return traits(component).rawValue;
}
std::string_view title(Component component) {
    return traits(component).title;
}
std::string_view symbol(Component component) {
    return traits(component).symbol;
}
bool isCollection(Component component) {
    return traits(component).isCollection;
}
ShareMode defaultMode(Component component) {
    return traits(component).defaultMode;
}
std::span<const ShareMode> allowedModes(Component component) {
    return traits(component).allowedModes;
}

bool allows(Component component, ShareMode mode) {
    const auto modes = allowedModes(component);
    return std::find(modes.begin(), modes.end(), mode) != modes.end();
}

std::optional<Component> component(std::string_view raw) {
    const auto* found = std::find_if(kComponents.begin(), kComponents.end(),
                                     [raw](Component candidate) { return rawValue(candidate) == raw; });
    return found == kComponents.end() ? std::nullopt : std::optional(*found);
}

} // namespace selvane
