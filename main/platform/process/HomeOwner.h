// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace selvane {

/// When root works in somebody else's home folder, makes this process that user for good, so that everything
/// it creates and replaces there stays theirs. Does nothing for anybody else, and where the system has no
/// such user. Call it before the first thread starts.
void becomeOwnerOf(const std::filesystem::path& home);

} // namespace selvane
