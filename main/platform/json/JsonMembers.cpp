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
        m_position = std::min(m_text.find_first_not_of(" \t\r\n", m_position), m_text.size());
        return m_position < m_text.size() ? m_text[m_position] : '\0';
    }
    void skip() { ++m_position; }

    /// A string with its quotes, a number or a word.
    std::string_view scalar() {
        const std::size_t begin = m_position;
        if (m_text[begin] != '"') {
            m_position = std::min(m_text.find_first_of(",]} \t\r\n", begin), m_text.size());
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

private:
    bool isEscaped(std::size_t quote) const {
        const std::size_t last = m_text.find_last_not_of('\\', quote - 1);
        return (quote - last) % 2 == 0;
    }

    static void breakLine(std::size_t depth, std::string& out) { out.append(1, '\n').append(2 * depth, ' '); }

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
    std::string dropped;
    bool isFirst = true;
    text.skip();
    while (text.next() != '}') {
        if (text.next() == ',')
            text.skip();
        text.next();
        const std::string_view name = text.scalar();
        text.next();
        text.skip(); // the colon
        const bool drops = isAmong(names, name);
        if (!drops)
            out.append(isFirst ? "\n  " : ",\n  ").append(name).append(": ");
        if (!text.value(1, drops ? dropped : out))
            return std::nullopt;
        isFirst = isFirst && drops;
        dropped.clear();
    }
    return out + (isFirst ? "}\n" : "\n}\n");
}

} // namespace selvane::json
