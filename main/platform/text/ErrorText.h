// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>
#include <system_error>

namespace selvane {

/// The Italian sentence that tells the user of an error: the message of one of Selvane's own errors, or the
/// path and reason of a system error. On one line, without control characters, whatever its paths hold.
std::string describe(const std::exception& error);
/// The reason alone.
std::string describe(const std::error_code& code);

} // namespace selvane
