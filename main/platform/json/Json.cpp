// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/Json.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>
#include <vector>

#include "platform/json/JsonNumbers.h"
#include "platform/json/JsonSurrogates.h"
#include "platform/text/Decimal.h"

namespace selvane::json {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
/// Subtype of a binary value, which JSON itself doesn't have, that holds the text of a number.
constexpr std::uint64_t kNumberText = 1;

using Object = Json::object_t;
using Members = std::vector<Object::value_type>;

/// As the base type, which doesn't look keys up: appending is fast and keeps duplicate keys.
Members& membersOf(Object& object) {
    return object;
}

/// A number that must be kept as text to stay as it was written.
struct WrittenNumber {
    std::size_t index; ///< among all numbers in the document
    std::string_view text;
};

Json numberValue(std::string_view written) {
    if (written.find_first_of(".eE") != std::string_view::npos) {
        const Decimal decimal = readDecimal(written);
        Json number = decimal.value;
        if (decimal.fits && number.dump() == written)
            return number;
    } else if (written != "-0") {
        std::int64_t value = 0;
        std::uint64_t unsignedValue = 0;
        const char* const end = written.data() + written.size();
        if (std::from_chars(written.data(), end, value).ec == std::errc())
            return value;
        if (std::from_chars(written.data(), end, unsignedValue).ec == std::errc() && written.front() != '-')
            return unsignedValue;
    }
    return Json::binary(Json::binary_t::container_type(written.begin(), written.end()), kNumberText);
}

/// Builds a value from the parser's events. Values wait in one list until their object or array ends, then
/// move into it. So each value moves only once, however many there are and however deep.
class Builder final : public nlohmann::json_sax<Json> {
public:
    explicit Builder(const std::vector<WrittenNumber>& written) : m_written(written) {}

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(std::int64_t value) override { return addNumber(value); }
    bool number_unsigned(std::uint64_t value) override { return addNumber(value); }
    bool number_float(double value, const std::string&) override { return addNumber(value); }
    bool string(std::string& value) override { return add(std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool key(std::string& name) override {
        m_key = std::move(name);
        return true;
    }
    bool start_object(std::size_t) override { return open(); }
    bool start_array(std::size_t) override { return open(); }
    bool end_object() override {
        Object object;
        Members& members = membersOf(object);
        members.reserve(m_waiting.size() - m_open.back().first);
        for (std::size_t i = m_open.back().first; i < m_waiting.size(); ++i)
            members.emplace_back(std::move(m_waiting[i].first), std::move(m_waiting[i].second));
        return close(std::move(object));
    }
    bool end_array() override {
        Json::array_t array;
        array.reserve(m_waiting.size() - m_open.back().first);
        for (std::size_t i = m_open.back().first; i < m_waiting.size(); ++i)
            array.push_back(std::move(m_waiting[i].second));
        return close(std::move(array));
    }
    bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception&) override {
        m_errorPosition = position;
        return false;
    }

    std::optional<std::size_t> errorPosition() const { return m_errorPosition; }
    Json result() { return std::move(m_waiting.front().second); }

private:
    struct Level {
        std::size_t first; ///< its first waiting value
        std::string key;   ///< its key in the level above
    };

    bool open() {
        if (m_open.size() == kDeepest)
            return false;
        m_open.push_back({m_waiting.size(), std::move(m_key)});
        return true;
    }
    bool close(Json value) {
        m_waiting.resize(m_open.back().first);
        m_key = std::move(m_open.back().key);
        m_open.pop_back();
        return add(std::move(value));
    }
    bool add(Json value) {
        m_waiting.emplace_back(std::move(m_key), std::move(value));
        return true;
    }
    bool addNumber(Json value) {
        const bool isWritten =
            m_nextWritten < m_written.size() && m_written[m_nextWritten].index == m_numbers;
        ++m_numbers;
        return add(isWritten ? numberValue(m_written[m_nextWritten++].text) : std::move(value));
    }

    const std::vector<WrittenNumber>& m_written;
    std::size_t m_nextWritten = 0;
    std::size_t m_numbers = 0;
    std::vector<std::pair<std::string, Json>> m_waiting;
    std::vector<Level> m_open;
    std::string m_key;
    std::optional<std::size_t> m_errorPosition;
};

/// Replaces the numbers that the parser would change or refuse by zeros of the same length, so that positions
/// stay the same. `copy` receives the changed text.
std::vector<WrittenNumber> takeOutNumbers(std::string_view text, std::string& copy) {
    std::vector<WrittenNumber> written;
    std::size_t index = 0;
    forEachNumber(text, [&](std::size_t position, std::string_view number) {
        if (!isPlainInteger(number)) {
            if (written.empty())
                copy = text;
            written.push_back({index, number});
            // Keep the sign: without it "1-2e3" would read as one number.
            const std::size_t sign = number.front() == '-' ? 1 : 0;
            std::fill_n(copy.begin() + static_cast<std::ptrdiff_t>(position + sign), number.size() - sign,
                        ' ');
            copy[position + sign] = '0';
        }
        ++index;
    });
    return written;
}

[[noreturn]] void failAt(std::size_t position, std::string_view text, const std::filesystem::path& file) {
    const std::string_view before = text.substr(0, position);
    const auto row = std::count(before.begin(), before.end(), '\n') + 1;
    const std::string_view line = before.substr(before.rfind('\n') + 1); // npos + 1 is 0
    const auto column =
        std::count_if(line.begin(), line.end(), [](char byte) { return (byte & 0xC0) != 0x80; });
    throw JsonError(file.string() + ": JSON non valido (riga " + std::to_string(row) + ", colonna " +
                    std::to_string(column + 1) + ")");
}

std::string quoted(const std::string& text) {
    try {
        return Json(text).dump();
    } catch (const Json::exception&) {
        throw JsonError("Testo non in UTF-8, che un file JSON non può contenere: " + text);
    }
}

void write(const Json& value, std::size_t depth, std::string& out);

/// Writes `count` elements between `brackets`, each on its own line.
template <typename WriteElement>
void writeLines(std::string_view brackets, std::size_t count, std::size_t depth, std::string& out,
                WriteElement writeElement) {
    out += brackets.front();
    for (std::size_t i = 0; i < count; ++i) {
        out += i == 0 ? "\n" : ",\n";
        out.append(2 * (depth + 1), ' ');
        writeElement(i);
    }
    if (count > 0)
        out.append(1, '\n').append(2 * depth, ' ');
    out += brackets.back();
}

void write(const Json& value, std::size_t depth, std::string& out) {
    if (const auto* const object = value.get_ptr<const Object*>()) {
        writeLines("{}", object->size(), depth, out, [&](std::size_t i) {
            const auto& [key, member] = *(object->begin() + static_cast<std::ptrdiff_t>(i));
            out.append(quoted(key)).append(": ");
            write(member, depth + 1, out);
        });
    } else if (value.is_array()) {
        writeLines("[]", value.size(), depth, out, [&](std::size_t i) { write(value[i], depth + 1, out); });
    } else if (const auto* const number = value.get_ptr<const Json::binary_t*>()) {
        out.append(number->begin(), number->end());
    } else if (const auto* const text = value.get_ptr<const std::string*>()) {
        out += quoted(*text);
    } else {
        out += value.dump();
    }
}

/// Drops the members of `object` for which `stays` returns false.
template <typename Predicate>
void keep(Object& object, Predicate stays) {
    Object kept;
    Members& members = membersOf(kept);
    members.reserve(object.size());
    for (auto& [key, value] : object) {
        if (stays(key, value))
            members.emplace_back(key, std::move(value));
    }
    object = std::move(kept);
}

} // namespace

Json parse(std::string_view text, const std::filesystem::path& file) {
    if (text.starts_with(kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    if (text.starts_with(kByteOrderMark)) // a second one, which the parser would leave out too
        failAt(0, text, file);
    std::string copy;
    const std::vector<WrittenNumber> written = takeOutNumbers(text, copy);
    if (written.empty())
        copy = text;
    json::replaceLoneSurrogates(copy.data(), copy.size());
    Builder builder(written);
    if (!Json::sax_parse(copy.begin(), copy.end(), &builder)) {
        if (const auto position = builder.errorPosition())
            failAt(*position > 0 ? *position - 1 : 0, text, file);
        throw JsonError(file.string() + ": JSON annidato troppo in profondità");
    }
    // The parser stops at a NUL and would ignore everything after it.
    if (const std::size_t position = text.find('\0'); position != std::string_view::npos)
        failAt(position, text, file);
    return builder.result();
}

const Json* find(const Json& object, std::string_view key) {
    const auto* const members = object.get_ptr<const Object*>();
    if (members == nullptr)
        return nullptr;
    const auto found = std::find_if(members->rbegin(), members->rend(),
                                    [&](const auto& member) { return member.first == key; });
    return found == members->rend() ? nullptr : &found->second;
}

void set(Json& object, std::string_view key, Json value) {
    auto& members = object.get_ref<Object&>();
    const auto isKey = [&](const auto& member) { return member.first == key; };
    const auto first = std::find_if(members.begin(), members.end(), isKey);
    if (first == members.end())
        return append(object, key, std::move(value));
    first->second = std::move(value);
    if (std::find_if(std::next(first), members.end(), isKey) == members.end())
        return;
    bool isFirst = true;
    keep(members,
         [&](const std::string& name, const Json&) { return name != key || std::exchange(isFirst, false); });
}

void append(Json& object, std::string_view key, Json value) {
    membersOf(object.get_ref<Object&>()).emplace_back(key, std::move(value));
}

void remove(Json& object, std::string_view key) {
    if (find(object, key) != nullptr)
        keep(object.get_ref<Object&>(), [&](const std::string& name, const Json&) { return name != key; });
}

std::string serialized(const Json& value) {
    std::string result;
    write(value, 0, result);
    result += '\n';
    return result;
}

} // namespace selvane::json
