// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/SessionRecord.h"

#include <set>

#include "Fuzzing.h"
#include "platform/json/Json.h"
#include "store/SessionHandover.h"

namespace selvane::fuzz {
namespace {

using Members = std::vector<Json::object_t::value_type>;

const std::set<std::string> kAccountBoundKeys = {"remoteMcpServersConfig",    "enabledMcpTools",
                                                 "toolSurfaceSnapshot",       "promptAppendSnapshot",
                                                 "remoteControlAutoEligible", "steeredByRemoteClient"};

std::optional<Json> parsed(std::string_view text) {
    try {
        return json::parse(text, "f");
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

std::optional<std::string> textIn(const Json& record, std::string_view key) {
    const Json* const value = json::find(record, key);
    return value != nullptr && value->is_string() ? std::optional(value->get<std::string>()) : std::nullopt;
}

/// A session that is listed can be imported, and one that can be imported is listed.
void requireSameReading(const std::optional<SessionRecord>& record, const std::optional<Json>& whole) {
    if (!whole) // too deep for a record, or accepted by only one of the two readers
        return;
    const auto id = textIn(*whole, "sessionId");
    require(record.has_value() == id.has_value(), "both readers find a record");
    if (!record)
        return;
    require(record->sessionId == *id && record->title == textIn(*whole, "title") &&
                record->cwd == textIn(*whole, "cwd") &&
                record->cliSessionId == textIn(*whole, "cliSessionId"),
            "with the same texts");
    const Json* const archived = json::find(*whole, "isArchived");
    require(record->isArchived == (archived != nullptr && archived->is_boolean() && archived->get<bool>()),
            "and the same state");
}

bool isSame(const SessionRecord& a, const SessionRecord& b) {
    return a.sessionId == b.sessionId && a.title == b.title && a.cwd == b.cwd &&
           a.lastActivityAt == b.lastActivityAt && a.isArchived == b.isArchived &&
           a.cliSessionId == b.cliSessionId && a.priorCliSessionIds == b.priorCliSessionIds;
}

void requireHandedOver(const Json& before, const Json& after) {
    Members expected;
    for (const auto& member : before.get_ref<const Json::object_t&>()) {
        if (!kAccountBoundKeys.contains(member.first))
            expected.push_back(member);
    }
    const Members& members = after.get_ref<const Json::object_t&>();
    require(members == expected, "the account's keys go, all others stay in their order");
}

class Records {
public:
    void check(std::string_view text) {
        const auto record = read(text);
        const auto whole = parsed(text);
        require(!record || whole || isTooDeep(text), "what is listed can be taken along");
        requireSameReading(record, whole);
        if (!whole)
            return;
        const std::string handedOver = withoutAccount(std::string(text), "f");
        if (!whole->is_object())
            return require(handedOver == text, "what is no record stays as it is");
        const auto after = parsed(handedOver);
        require(after.has_value(), "a record stays JSON");
        requireHandedOver(*whole, *after);
        const auto again = read(handedOver);
        require(record.has_value() == again.has_value() && (!record || isSame(*record, *again)),
                "the session stays the same");
    }

private:
    std::optional<SessionRecord> read(std::string_view text) {
        m_file.set(text);
        return m_reader.read(m_path);
    }

    /// Nested so deeply that only one of the two readers accepts it.
    static bool isTooDeep(std::string_view text) {
        constexpr std::ptrdiff_t kDeepest = 512;
        return std::count_if(text.begin(), text.end(), [](char c) { return c == '[' || c == '{'; }) >
               kDeepest;
    }

    const std::string m_path = newFolder() / "local_1.json";
    ChangingFile m_file{m_path};
    SessionRecordReader m_reader;
};

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static selvane::fuzz::Records records;
    records.check(selvane::fuzz::textOf(data, size));
    return 0;
}
