// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/text/EntryText.h"

#include <algorithm>

#include "model/ByteText.h"
#include "platform/text/Text.h"

namespace selvane::text {

bool fitsEntry(std::string_view text) {
    return isUtf8(text) && singleLine(text) == text;
}

std::string entryValue(std::string_view text) {
    std::string result;
    for (const char byte : text) {
        if (byte == '\\')
            result += byte;
        // Blanks at the beginning would be taken for part of the file's layout.
        result += byte == ' ' && result.empty() ? std::string("\\s") : std::string(1, byte);
    }
    return result;
}

std::string fromEntryValue(std::string_view value) {
    std::string result;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size())
            result += value[++i] == 's' ? ' ' : value[i];
        else
            result += value[i];
    }
    return result;
}

/// Quoted for the command line, then for the file. "%" begins a field code.
std::string entryWord(std::string_view word) {
    std::string result = "\"";
    for (const char byte : word) {
        if (byte == '"' || byte == '`' || byte == '$')
            result += "\\\\";
        else if (byte == '\\')
            result += "\\\\\\";
        else if (byte == '%')
            result += '%';
        result += byte;
    }
    return result + '"';
}

std::string_view entryKey(std::string_view entry, std::string_view key) {
    while (!entry.empty()) {
        const std::string_view line = entry.substr(0, entry.find('\n'));
        if (line.starts_with(key) && line.substr(key.size()).starts_with('='))
            return line.substr(key.size() + 1);
        entry.remove_prefix(std::min(entry.size(), line.size() + 1));
    }
    return {};
}

} // namespace selvane::text
