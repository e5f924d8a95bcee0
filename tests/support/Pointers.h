// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace selvane::test {

/// The words as the `exec` functions take them. Valid as long as the words are left as they are.
inline std::vector<char*> pointers(std::vector<std::string>& words) {
    std::vector<char*> result;
    for (std::string& word : words)
        result.push_back(word.data());
    result.push_back(nullptr);
    return result;
}

} // namespace selvane::test
