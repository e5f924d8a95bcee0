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
    Component component;
    std::string_view rawValue;
    std::string_view location;
    ComponentKind kind;
    std::string_view title;
    std::string_view symbol;
    ShareMode defaultMode;
    std::span<const ShareMode> allowedModes;
    std::string_view present = {};
    std::string_view absent = {};
    std::string_view items = {};
    bool isFeminine = false; ///< what `items` names
};

/// A folder of items, named on disk as everywhere.
constexpr Traits collection(Component component, std::string_view name, std::string_view title,
                            std::string_view symbol, std::string_view items, bool isFeminine = false) {
    return {.component = component,
            .rawValue = name,
            .location = name,
            .kind = ComponentKind::collection,
            .title = title,
            .symbol = symbol,
            .defaultMode = shared,
            .allowedModes = kCollectionModes,
            .items = items,
            .isFeminine = isFeminine};
}

constexpr std::array<Traits, kComponents.size()> kTraits = {{
    collection(Component::skills, "skills", "Skill", "wand.and.stars", "skill", true),
    collection(Component::agents, "agents", "Agenti", "person.2", "agenti"),
    collection(Component::commands, "commands", "Comandi", "command", "comandi"),
    collection(Component::outputStyles, "output-styles", "Stili di output", "text.quote", "stili"),
    collection(Component::rules, "rules", "Regole (rules/)", "list.bullet.rectangle", "regole", true),
    {Component::claudeMd, "CLAUDE.md", "CLAUDE.md", ComponentKind::memory, "Regole globali (CLAUDE.md)",
     "doc.text", extend, kClaudeMdModes, "File CLAUDE.md del profilo", "Nessun CLAUDE.md"},
    {Component::settings, "settings", "settings.json", ComponentKind::file, "Impostazioni e hook",
     "gearshape", separate, kImportModes, "settings.json del profilo (permessi, hook, plugin attivi)",
     "Nessuna impostazione personalizzata"},
    {Component::plugins, "plugins", "plugins", ComponentKind::folder, "Plugin", "puzzlepiece.extension",
     separate, kImportModes, "Plugin e marketplace installati", "Nessun plugin"},
    {Component::mcp, "mcp", ".claude.json", ComponentKind::servers, "Server MCP", "server.rack", separate,
     kImportModes, "%1 server MCP", "Nessun server MCP configurato"},
}};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < kTraits.size(); ++i) {
        if (kTraits.at(i).component != kComponents.at(i) || static_cast<std::size_t>(kComponents.at(i)) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "the enumeration, the list and this table have one order");

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
std::string_view description(Component component, bool isPresent) {
    return isPresent ? traits(component).present : traits(component).absent;
}
std::string_view location(Component component) {
    return traits(component).location;
}
std::string_view itemsName(Component component) {
    return traits(component).items;
}
bool areItemsFeminine(Component component) {
    return traits(component).isFeminine;
}
ComponentKind kind(Component component) {
    return traits(component).kind;
}
bool isCollection(Component component) {
    return kind(component) == ComponentKind::collection;
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
