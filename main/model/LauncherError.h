// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>
#include <string>

namespace selvane {

/// The error that Selvane's own operations throw. Its message is the Italian sentence shown to the user.
class LauncherError : public std::runtime_error {
public:
    explicit LauncherError(const std::string& message) : std::runtime_error(message) {}
};

} // namespace selvane
