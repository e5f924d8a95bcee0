// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/Slug.h"

#include "model/Profile.h"
#include "platform/text/Text.h"

namespace selvane {

std::string slug(std::string_view name) {
    std::string result;
    for (const char c : text::folded(name)) {
        const bool doubled = c == '-' && (result.empty() || result.back() == '-');
        if (!doubled)
            result += c;
    }
    if (result.ends_with('-'))
        result.pop_back();
    if (result.empty())
        return "profilo";
    const bool reserved = result == Profile::kDefaultId || result == "bin";
    return reserved ? "profilo-" + result : result;
}

} // namespace selvane
