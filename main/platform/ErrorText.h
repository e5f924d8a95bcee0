// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>

namespace selvane {

/// The Italian sentence a user reads for an error: the message of the program's own errors, and path and
/// reason of the system's.
std::string describe(const std::exception& error);

} // namespace selvane
