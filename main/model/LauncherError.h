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

/// Claude Desktop isn't installed.
class NotInstalledError : public LauncherError {
public:
    using LauncherError::LauncherError;
};

/// The program that writes archives has failed.
class ZipError : public LauncherError {
public:
    /// `status`: its exit status, or 128 plus the signal that ended it.
    ZipError(const std::string& message, int status) : LauncherError(message), m_status(status) {}
    int status() const { return m_status; }

private:
    int m_status;
};

} // namespace selvane
