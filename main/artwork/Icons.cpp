// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/Icons.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <tuple>

#include "artwork/IconTable.h"
#include "artwork/SvgPath.h"

namespace selvane {
namespace {

struct SymbolEntry {
    std::string_view symbol;
    std::string_view icon;
};

constexpr std::string_view kUnknown = "user-circle";

constexpr auto nameAndWeight(const IconEntry& entry) {
    return std::tuple(entry.name, entry.weight);
}
static_assert(std::ranges::is_sorted(kIconTable, {}, nameAndWeight));

constexpr SymbolEntry kSymbols[] = {
    // profiles
    {"person.crop.circle", kUnknown},
    {"house", "house-line"},
    {"briefcase", "briefcase"},
    {"building.2", "buildings"},
    {"hammer", "hammer"},
    {"wrench.and.screwdriver", "wrench"},
    {"paintbrush", "paint-brush"},
    {"pencil.and.ruler", "pencil-ruler"},
    {"camera", "camera"},
    {"film", "film-strip"},
    {"music.note", "music-note"},
    {"book", "book"},
    {"graduationcap", "graduation-cap"},
    {"flask", "flask"},
    {"atom", "atom"},
    {"cpu", "cpu"},
    {"terminal", "terminal-window"},
    {"chevron.left.forwardslash.chevron.right", "code"},
    {"chart.bar", "chart-bar"},
    {"dollarsign.circle", "currency-circle-dollar"},
    {"cart", "shopping-cart-simple"},
    {"globe", "globe"},
    {"airplane", "airplane"},
    {"car", "car"},
    {"leaf", "leaf"},
    {"heart", "heart"},
    {"star", "star"},
    {"bolt", "lightning"},
    {"flame", "fire-simple"},
    {"moon", "moon"},
    {"sun.max", "sun"},
    {"gamecontroller", "game-controller"},
    {"pawprint", "paw-print"},
    {"cup.and.saucer", "coffee"},
    {"sparkles", "sparkle"},
    // components
    {"wand.and.stars", "magic-wand"},
    {"person.2", "users"},
    {"command", "command"},
    {"text.quote", "quotes"},
    {"list.bullet.rectangle", "list-bullets"},
    {"doc.text", "file-text"},
    {"gearshape", "gear-six"},
    {"puzzlepiece.extension", "puzzle-piece"},
    {"server.rack", "hard-drives"},
    // controls
    {"slider.horizontal.3", "sliders-horizontal"},
    {"person.badge.key", "key"},
    {"person.badge.plus", "user-plus"},
    {"plus", "plus"},
    {"arrow.triangle.branch", "git-branch"},
    {"arrow.triangle.2.circlepath", "arrows-clockwise"},
    {"archivebox", "archive"},
    {"square.grid.2x2", "squares-four"},
    {"pencil", "pencil-simple"},
    {"plus.square.on.square", "stack-plus"},
    {"folder", "folder"},
    {"doc.on.doc", "copy"},
    {"arrow.right", "arrow-right"},
    {"trash", "trash"},
    {"bubble.left.and.text.bubble.right", "chats"},
    {"macwindow", "app-window"},
    {"link", "link"},
    {"shield", "shield"},
    {"exclamationmark.triangle", "warning"},
    {"ellipsis.circle", "dots-three-circle"},
};

constexpr bool hasIcon(const SymbolEntry& entry) {
    return std::ranges::binary_search(kIconTable, entry.icon, {}, &IconEntry::name);
}
static_assert(std::ranges::all_of(kSymbols, hasIcon), "resources/icons.txt lacks the icon of a symbol");

} // namespace

std::string_view iconForSymbol(std::string_view symbol) {
    const auto* const found = std::ranges::find(kSymbols, symbol, &SymbolEntry::symbol);
    return found == std::end(kSymbols) ? kUnknown : found->icon;
}

std::string_view iconData(std::string_view name, IconWeight weight) {
    const std::tuple key(name, weight);
    const auto* const found = std::ranges::lower_bound(kIconTable, key, {}, nameAndWeight);
    if (found != std::end(kIconTable) && nameAndWeight(*found) == key)
        return found->data;
    return weight == IconWeight::regular ? std::string_view() : iconData(name, IconWeight::regular);
}

QPainterPath iconPath(std::string_view name, IconWeight weight) {
    // A list that is typed in makes the same few icons again and again.
    thread_local std::map<const char*, QPainterPath> paths;
    const std::string_view data = iconData(name, weight);
    const auto found = paths.find(data.data());
    return found != paths.end() ? found->second : paths.emplace(data.data(), svgPath(data)).first->second;
}

} // namespace selvane
