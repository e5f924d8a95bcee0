// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>

namespace selvane {

/// How two files, or all the files in two folders, differ.
struct Differences {
    QStringList lines; ///< for each file its path, then its lines beginning with "@@", " ", "-" or "+"
    QStringList files; ///< the paths, below the folders, of those that differ
    int count = 0;     ///< different lines of text
    bool isKnown = false;

    bool operator==(const Differences&) const = default;

    QString summary() const; ///< such as "12 righe diverse in SKILL.md"
};

/// Runs the system's `diff`, which may take a while. Never fails: `isKnown` is false if it can't be told.
/// What is longer than a person would read is cut off.
Differences differencesBetween(const std::filesystem::path& before, const std::filesystem::path& after);

} // namespace selvane
