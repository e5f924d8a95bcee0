// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace selvane {

class Progress;

/// How far an operation is: "640 MB di 1,2 GB", "8.310 file finora · 410 MB" while the whole isn't known, and
/// nothing as long as nothing is done.
std::string progressText(const Progress& progress);

} // namespace selvane
