// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <ctime>
#include <memory>
#include <string>

#include <unicode/coll.h>
#include <unicode/datefmt.h>
#include <unicode/normalizer2.h>
#include <unicode/reldatefmt.h>
#include <unicode/timezone.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf16.h>

#include "platform/services/Functions.h"

namespace selvane::module {

namespace {

/// Below this code point (Latin, Greek, Cyrillic, Armenian), letters are still readable without their marks;
/// in the scripts above it, marks are vowels and part of the word.
constexpr UChar32 kFirstScriptOfMarks = 0x0590;

icu::UnicodeString decoded(const char* bytes, std::size_t size) {
    return icu::UnicodeString::fromUTF8({bytes, static_cast<std::int32_t>(size)});
}

void deliver(const icu::UnicodeString& text, ByteSink sink, void* context) {
    std::string bytes;
    text.toUTF8String(bytes);
    sink(context, bytes.data(), bytes.size());
}

std::unique_ptr<icu::Collator> makeCollator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(icu::Locale("it"), status));
    if (U_FAILURE(status))
        return nullptr;
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

icu::UnicodeString withoutDiacritics(const icu::UnicodeString& decomposed) {
    icu::UnicodeString result;
    UChar32 base = 0;
    for (std::int32_t i = 0; i < decomposed.length(); i = decomposed.moveIndex32(i, 1)) {
        const UChar32 character = decomposed.char32At(i);
        if (u_charType(character) != U_NON_SPACING_MARK)
            base = character;
        else if (base < kFirstScriptOfMarks)
            continue;
        result.append(character);
    }
    return result;
}

/// A mark shares the fate of its base character, so a removed symbol leaves no lone mark.
icu::UnicodeString withoutSymbols(const icu::UnicodeString& text) {
    constexpr UChar32 kReplacement = '-';
    icu::UnicodeString result;
    bool baseStays = false;
    for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        const UChar32 character = text.char32At(i);
        const std::uint32_t category = U_GET_GC_MASK(character);
        if ((category & U_GC_M_MASK) == 0)
            baseStays = (category & (U_GC_L_MASK | U_GC_N_MASK)) != 0;
        result.append(baseStays ? character : kReplacement);
    }
    return result;
}

/// Without case and diacritics.
icu::UnicodeString comparable(icu::UnicodeString text, UErrorCode& status) {
    const icu::Normalizer2* const decompose = icu::Normalizer2::getNFDInstance(status);
    const icu::Normalizer2* const compose = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status))
        return {};
    text = withoutDiacritics(decompose->normalize(text.foldCase(U_FOLD_CASE_DEFAULT), status));
    return compose->normalize(text, status);
}

icu::UnicodeString folded(icu::UnicodeString text, UErrorCode& status) {
    return withoutSymbols(comparable(std::move(text), status).toLower(icu::Locale::getRoot()));
}

/// The local time at `time`, as if it were UTC. The C library knows the local zone, which ICU could only find
/// by comparing the files of the zone database.
UDate localWallClock(std::int64_t time) {
    const std::time_t seconds = time;
    std::tm parts{};
    const bool known = localtime_r(&seconds, &parts) != nullptr;
    return (static_cast<double>(time) + (known ? static_cast<double>(parts.tm_gmtoff) : 0.0)) * 1000.0;
}

struct Distance {
    std::int64_t count;
    URelativeDateTimeUnit unit;
};

/// The distance in the largest unit of which at least one has passed.
Distance distanceFor(std::int64_t seconds) {
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kHour = 60 * kMinute;
    constexpr std::int64_t kDay = 24 * kHour;
    constexpr struct {
        std::int64_t size;
        URelativeDateTimeUnit unit;
    } kUnits[] = {{365 * kDay, UDAT_REL_UNIT_YEAR}, {30 * kDay, UDAT_REL_UNIT_MONTH},
                  {7 * kDay, UDAT_REL_UNIT_WEEK},   {kDay, UDAT_REL_UNIT_DAY},
                  {kHour, UDAT_REL_UNIT_HOUR},      {kMinute, UDAT_REL_UNIT_MINUTE}};
    for (const auto& [size, unit] : kUnits) {
        if (seconds >= size)
            return {seconds / size, unit};
    }
    return {0, UDAT_REL_UNIT_SECOND};
}

} // namespace

void sortKey(const char* name, std::size_t size, ByteSink sink, void* context) noexcept {
    try {
        static const std::unique_ptr<icu::Collator> collator = makeCollator();
        if (!collator) {
            sink(context, name, size);
            return;
        }
        const icu::UnicodeString text = decoded(name, size);
        std::string key(static_cast<std::size_t>(text.length()) * 4 + 16, '\0');
        const auto fill = [&] {
            return collator->getSortKey(text, reinterpret_cast<std::uint8_t*>(key.data()),
                                        static_cast<std::int32_t>(key.size()));
        };
        auto needed = static_cast<std::size_t>(fill());
        if (needed > key.size()) {
            key.resize(needed);
            needed = static_cast<std::size_t>(fill());
        }
        sink(context, key.data(), needed);
    } catch (...) {
        sink(context, name, size);
    }
}

void fold(const char* name, std::size_t size, ByteSink sink, void* context) noexcept {
    try {
        UErrorCode status = U_ZERO_ERROR;
        const icu::UnicodeString text = folded(decoded(name, size), status);
        if (U_SUCCESS(status))
            deliver(text, sink, context);
    } catch (...) {
        return;
    }
}

void searchable(const char* text, std::size_t size, ByteSink sink, void* context) noexcept {
    try {
        UErrorCode status = U_ZERO_ERROR;
        const icu::UnicodeString plain = comparable(decoded(text, size), status);
        if (U_SUCCESS(status))
            deliver(plain, sink, context);
    } catch (...) {
        return;
    }
}

void longDate(std::int64_t time, ByteSink sink, void* context) noexcept {
    try {
        const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(
            icu::DateFormat::kLong, icu::DateFormat::kShort, icu::Locale("it")));
        if (!format)
            return;
        format->setTimeZone(*icu::TimeZone::getGMT());
        icu::UnicodeString text;
        deliver(format->format(localWallClock(time), text), sink, context);
    } catch (...) {
        return;
    }
}

void relativeDate(std::int64_t secondsAgo, ByteSink sink, void* context) noexcept {
    try {
        UErrorCode status = U_ZERO_ERROR;
        const icu::RelativeDateTimeFormatter formatter(icu::Locale("it"), status);
        const Distance distance = distanceFor(secondsAgo);
        icu::UnicodeString text;
        formatter.format(static_cast<double>(-distance.count), distance.unit, text, status);
        if (U_SUCCESS(status))
            deliver(text, sink, context);
    } catch (...) {
        return;
    }
}

} // namespace selvane::module
