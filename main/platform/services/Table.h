// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/services/Functions.h"

namespace selvane::module {

inline constexpr Services kTable{
    .sortKey = sortKey,
    .fold = fold,
    .searchable = searchable,
    .longDate = longDate,
    .relativeDate = relativeDate,
    .newSessionReader = newSessionReader,
    .deleteSessionReader = deleteSessionReader,
    .readSession = readSession,
    .newTranscriptReader = newTranscriptReader,
    .deleteTranscriptReader = deleteTranscriptReader,
    .readTranscriptLine = readTranscriptLine,
    .isStrictJson = isStrictJson,
};

} // namespace selvane::module
