// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace selvane {

/// Where a module of the program lies: beside the running executable, as in a build tree, else in the
/// `lib/selvane` of its installation. Says nothing about whether it is there.
std::filesystem::path modulePath(const std::string& fileName);

} // namespace selvane
