// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/JsonMembers.h"

#include <algorithm>

#include "platform/json/Json.h"

namespace selvane::json {
namespace {

/// Walks through valid JSON once, token by token.
class Layout {
public:
    explicit Layout(std::string_view text) : m_text(text) {}

    char next() {
        while (m_position < m_text.size() && isBlank(m_text[m_position]))
            ++m_position;
        return m_position < m_text.size() ? m_text[m_position] : '\0';
    }
    void skip() { ++m_position; }

    /// A string with its quotes, a number or a word.
    std::string_view scalar() {
        const std::size_t begin = m_position;
        if (m_text[begin] != '"') {
            while (m_position < m_text.size() && !endsScalar(m_text[m_position]))
                ++m_position;
        } else {
            do {
                m_position = m_text.find('"', m_position + 1);
            } while (isEscaped(m_position));
            ++m_position;
        }
        return m_text.substr(begin, m_position - begin);
    }

    /// Appends the next value to `out`, indented for `depth` levels. False if it is nested too deeply.
    bool value(std::size_t depth, std::string& out) {
        const std::size_t outside = depth;
        do {
            const char token = next();
            if (token == '{' || token == '[') {
                if (depth == kDeepest)
                    return false;
                out += token;
                skip();
                if (next() != '}' && next() != ']') {
                    breakLine(++depth, out);
                    continue; // its first value or name comes next
                }
                out += next();
                skip();
            } else {
                out += scalar();
            }
            depth = separators(depth, outside, out);
        } while (depth > outside);
        return true;
    }

    void skipValue() {
        int depth = 0;
        do {
            const char token = next();
            if (token == '{' || token == '[')
                ++depth;
            else if (token == '}' || token == ']')
                --depth;
            else if (token != ',' && token != ':') {
                scalar();
                continue;
            }
            skip();
        } while (depth > 0);
    }

private:
    static bool isBlank(char character) {
        return character == ' ' || character == '\n' || character == '\t' || character == '\r';
    }
    static bool endsScalar(char character) {
        return character == ',' || character == ']' || character == '}' || isBlank(character);
    }

    bool isEscaped(std::size_t quote) const {
        std::size_t backslashes = 0;
        while (m_text[quote - 1 - backslashes] == '\\')
            ++backslashes;
        return backslashes % 2 == 1;
    }

    static void breakLine(std::size_t depth, std::string& out) {
        static const std::string longest = "\n" + std::string(2 * kDeepest, ' ');
        out.append(longest, 0, 1 + 2 * depth);
    }

    /// Appends what stands between this value and the next; returns the depth of the next.
    std::size_t separators(std::size_t depth, std::size_t outside, std::string& out) {
        while (depth > outside) {
            const char token = next();
            const bool closes = token == '}' || token == ']';
            skip();
            depth -= closes ? 1 : 0;
            if (closes)
                breakLine(depth, out);
            out += token;
            if (token == ':')
                out += ' ';
            else if (token == ',')
                breakLine(depth, out);
            if (!closes)
                break;
        }
        return depth;
    }

    std::string_view m_text;
    std::size_t m_position = 0;
};

bool isAmong(std::span<const std::string_view> names, std::string_view quoted) {
    std::string name(quoted.substr(1, quoted.size() - 2));
    if (name.find('\\') != std::string::npos)
        name = Json::parse(quoted).get<std::string>();
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

std::optional<std::string> withoutMembers(std::string_view object, std::span<const std::string_view> names) {
    Layout text(object);
    if (text.next() != '{')
        return std::nullopt;
    std::string out = "{";
    out.reserve(object.size() + object.size() / 4);
    bool isFirst = true;
    text.skip();
    while (text.next() != '}') {
        if (text.next() == ',')
            text.skip();
        text.next();
        const std::string_view name = text.scalar();
        text.next();
        text.skip(); // the colon
        if (isAmong(names, name)) {
            text.skipValue();
            continue;
        }
        out.append(isFirst ? "\n  " : ",\n  ").append(name).append(": ");
        if (!text.value(1, out))
            return std::nullopt;
        isFirst = false;
    }
    return out + (isFirst ? "}\n" : "\n}\n");
}

} // namespace selvane::json
