// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/SchemeHandler.h"

#include "model/LauncherError.h"

/// macOS hands links to the application that is running; there is nothing to choose.
namespace selvane {

std::string schemeHandler(const std::string&) {
    return {};
}

void setSchemeHandler(const std::string& scheme, const std::string&) {
    throw LauncherError("I collegamenti \"" + scheme +
                        ":\" non possono essere affidati ad altri su questo sistema");
}

void resetSchemeHandler(const std::string&) {}

} // namespace selvane
