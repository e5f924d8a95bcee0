// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>
#include <system_error>

namespace selvane {

/// The Italian sentence a user reads for an error: the message of the program's own errors, and path and
/// reason of the system's.
std::string describe(const std::exception& error);
/// The reason alone.
std::string describe(const std::error_code& code);

} // namespace selvane
