// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <exception>

namespace selvane {

/// `one` for a single thing, otherwise `many` with the number in place of %1.
inline QString counted(qsizetype count, const QString& one, const QString& many) {
    return count == 1 ? one : many.arg(count);
}

/// The sentence with which the windows tell of an error: where the command line gives a number or speaks of
/// another system, this says what the user can do here.
QString explained(const std::exception& error);

} // namespace selvane
