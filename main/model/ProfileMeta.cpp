// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/ProfileMeta.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <nlohmann/json.hpp>

#include "model/ByteText.h"

namespace selvane {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kKeys[] = {"account",      "color", "created", "excluded", "isolated", "keptOwn",
                                      "lastLaunched", "modes", "name",    "source",   "summary",  "symbol"};

/// Thrown by an unusable record, caught in this file and turned into "nothing".
struct InvalidRecord {};

std::string iso8601(Timestamp time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text;
}

/// Reads a date's fixed-width fields from left to right.
class DateReader {
public:
    explicit DateReader(std::string_view text) : m_rest(text) {}

    int number(std::size_t width) {
        if (m_rest.size() < width)
            throw InvalidRecord{};
        int value = 0;
        for (const char digit : m_rest.substr(0, width)) {
            if (digit < '0' || digit > '9')
                throw InvalidRecord{};
            value = value * 10 + (digit - '0');
        }
        m_rest.remove_prefix(width);
        return value;
    }

    char oneOf(std::string_view characters) {
        if (m_rest.empty() || characters.find(m_rest.front()) == std::string_view::npos)
            throw InvalidRecord{};
        const char found = m_rest.front();
        m_rest.remove_prefix(1);
        return found;
    }

    bool atEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

std::chrono::seconds zoneOffset(DateReader& reader) {
    const char sign = reader.oneOf("Z+-");
    if (sign == 'Z')
        return {};
    const std::chrono::hours hours(reader.number(2));
    reader.oneOf(":");
    const std::chrono::minutes minutes(reader.number(2));
    if (hours.count() > 23 || minutes.count() > 59)
        throw InvalidRecord{};
    return sign == '+' ? hours + minutes : -(hours + minutes);
}

Timestamp timestamp(std::string_view text) {
    using namespace std::chrono;
    DateReader reader(text);
    const year dateYear(reader.number(4));
    reader.oneOf("-");
    const month dateMonth(static_cast<unsigned>(reader.number(2)));
    reader.oneOf("-");
    const day dateDay(static_cast<unsigned>(reader.number(2)));
    reader.oneOf("T");
    const int hour = reader.number(2);
    reader.oneOf(":");
    const int minute = reader.number(2);
    reader.oneOf(":");
    const int second = reader.number(2);
    const seconds offset = zoneOffset(reader);
    const year_month_day date(dateYear, dateMonth, dateDay);
    if (!reader.atEnd() || !date.ok() || hour > 23 || minute > 59 || second > 60)
        throw InvalidRecord{};
    const Timestamp time = sys_days(date) + hours(hour) + minutes(minute) + seconds(second) - offset;
    // A year that doesn't fit in four digits would make the record unreadable once written.
    if (time < Timestamp(sys_days(year(0) / 1 / 1)) || time >= Timestamp(sys_days(year(10000) / 1 / 1)))
        throw InvalidRecord{};
    return time;
}

/// The value of a key that may be missing or null; of a key that occurs twice the last.
const Json* optionalValue(const Json& object, std::string_view key) {
    const Json* value = nullptr;
    for (const auto& member : object.get_ref<const Json::object_t&>()) {
        if (member.first == key)
            value = &member.second;
    }
    return value == nullptr || value->is_null() ? nullptr : value;
}

std::string requireText(const Json& value) {
    if (!value.is_string())
        throw InvalidRecord{};
    return bytesFromText(value.get_ref<const std::string&>());
}

std::optional<std::string> optionalText(const Json& object, std::string_view key) {
    const Json* value = optionalValue(object, key);
    return value == nullptr ? std::nullopt : std::optional(requireText(*value));
}

std::optional<Timestamp> optionalDate(const Json& object, std::string_view key) {
    const Json* value = optionalValue(object, key);
    return value == nullptr ? std::nullopt : std::optional(timestamp(requireText(*value)));
}

bool requireFlag(const Json& value) {
    if (!value.is_boolean())
        throw InvalidRecord{};
    return value.get<bool>();
}

const Json& requireObject(const Json& value) {
    if (!value.is_object())
        throw InvalidRecord{};
    return value;
}

std::map<std::string, ShareMode> modes(const Json& value) {
    std::map<std::string, ShareMode> result;
    for (const auto& [key, mode] : requireObject(value).items()) {
        const auto known = shareMode(requireText(mode));
        if (!known)
            throw InvalidRecord{};
        result[key] = *known;
    }
    return result;
}

using ItemNames = std::map<std::string, std::vector<std::string>>; // by component

ItemNames itemNames(const Json& value) {
    ItemNames result;
    for (const auto& [key, names] : requireObject(value).items()) {
        if (!names.is_array())
            throw InvalidRecord{};
        auto& list = result[key];
        list.clear();
        for (const Json& name : names)
            list.push_back(requireText(name));
    }
    return result;
}

/// Adds a new key without looking it up: a record made by others can have very many.
void append(Json& object, const std::string& key, Json value) {
    std::vector<Json::object_t::value_type>& members = object.get_ref<Json::object_t&>();
    members.emplace_back(key, std::move(value));
}

Json toJson(const ItemNames& items) {
    Json object = Json::object();
    for (const auto& [component, names] : items) {
        Json list = Json::array();
        for (const std::string& name : names)
            list.push_back(textFromBytes(name));
        append(object, component, std::move(list));
    }
    return object;
}

ProfileMeta metaFrom(const Json& object) {
    ProfileMeta meta;
    const auto name = optionalText(requireObject(object), "name");
    if (!name)
        throw InvalidRecord{};
    meta.name = *name;
    meta.summary = optionalText(object, "summary").value_or(meta.summary);
    meta.look.symbol = optionalText(object, "symbol").value_or(meta.look.symbol);
    meta.look.color = optionalText(object, "color").value_or(meta.look.color);
    meta.source = optionalText(object, "source");
    if (const Json* value = optionalValue(object, "modes"))
        meta.modes = modes(*value);
    if (const Json* value = optionalValue(object, "excluded"))
        meta.excluded = itemNames(*value);
    if (const Json* value = optionalValue(object, "isolated"))
        meta.isolated = requireFlag(*value);
    if (const Json* value = optionalValue(object, "keptOwn"))
        meta.keptOwn = itemNames(*value);
    meta.account = optionalText(object, "account");
    meta.created = optionalDate(object, "created").value_or(meta.created);
    meta.lastLaunched = optionalDate(object, "lastLaunched");
    return meta;
}

} // namespace

Timestamp currentTimestamp() {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

Json toJson(const ProfileMeta& meta) {
    Json modes = Json::object();
    for (const auto& [component, mode] : meta.modes)
        append(modes, component, rawValue(mode));

    Json object = Json::object(); // keys in alphabetical order
    if (meta.account)
        object["account"] = textFromBytes(*meta.account);
    if (!meta.look.color.empty())
        object["color"] = textFromBytes(meta.look.color);
    object["created"] = iso8601(meta.created);
    object["excluded"] = toJson(meta.excluded);
    if (meta.isolated)
        object["isolated"] = true;
    if (!meta.keptOwn.empty())
        object["keptOwn"] = toJson(meta.keptOwn);
    if (meta.lastLaunched)
        object["lastLaunched"] = iso8601(*meta.lastLaunched);
    object["modes"] = std::move(modes);
    object["name"] = textFromBytes(meta.name);
    if (meta.source)
        object["source"] = textFromBytes(*meta.source);
    object["summary"] = textFromBytes(meta.summary);
    object["symbol"] = textFromBytes(meta.look.symbol);
    return object;
}

bool isProfileMetaKey(std::string_view key) {
    return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

std::optional<ProfileMeta> profileMeta(const Json& record) {
    try {
        return metaFrom(record);
    } catch (const InvalidRecord&) {
        return std::nullopt;
    }
}

} // namespace selvane
