// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>
#include <string>

namespace selvane {

/// The one error of the program's own operations; its message is the Italian sentence that the user reads.
class LauncherError : public std::runtime_error {
public:
    explicit LauncherError(const std::string& message) : std::runtime_error(message) {}
};

} // namespace selvane
