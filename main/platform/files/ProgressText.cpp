// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/ProgressText.h"

#include <algorithm>

#include "platform/files/Progress.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

/// As Italian writes a large number: "20.412".
std::string grouped(std::int64_t number) {
    constexpr std::size_t kGroup = 3;
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > kGroup;)
        text.insert(place -= kGroup, ".");
    return text;
}

} // namespace

std::string progressText(const Progress& progress) {
    const auto expected = progress.expected();
    if (expected && expected->bytes > 0)
        return text::byteCount(std::min(progress.bytes(), expected->bytes)) + " di " +
               text::byteCount(expected->bytes);
    if (expected)
        return grouped(std::min(progress.entries(), expected->entries)) + " di " + grouped(expected->entries);
    if (progress.entries() == 0)
        return {};
    return grouped(progress.entries()) + " file finora · " + text::byteCount(progress.bytes());
}

} // namespace selvane
