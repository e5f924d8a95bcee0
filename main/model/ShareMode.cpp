// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/ShareMode.h"

#include <algorithm>

namespace selvane {
namespace {

struct Texts {
    std::string_view rawValue;
    std::string_view label;
    std::string_view help;
};

constexpr std::array<Texts, kShareModes.size()> kTexts = {{
    {"shared", "Unificato",
     "Collegato alla sorgente: stesse modifiche, nuovi elementi sincronizzati all'avvio"},
    {"separate", "Separato", "Copia indipendente: le modifiche restano in questo profilo"},
    {"extend", "Esteso", "Importa le regole della sorgente e aggiunge le proprie"},
    {"none", "Vuoto", "Parte vuoto"},
}};

const Texts& texts(ShareMode mode) {
    return kTexts.at(static_cast<std::size_t>(mode));
}

} // namespace

std::string_view rawValue(ShareMode mode) {
    return texts(mode).rawValue;
}
std::string_view label(ShareMode mode) {
    return texts(mode).label;
}
std::string_view help(ShareMode mode) {
    return texts(mode).help;
}

std::optional<ShareMode> shareMode(std::string_view raw) {
    const auto* found = std::find_if(kShareModes.begin(), kShareModes.end(),
                                     [raw](ShareMode mode) { return rawValue(mode) == raw; });
    return found == kShareModes.end() ? std::nullopt : std::optional(*found);
}

} // namespace selvane
