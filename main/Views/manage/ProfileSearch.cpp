// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ProfileSearch.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "Views/controls/FoldedText.h"

namespace selvane {
namespace {

constexpr std::size_t kName = 0;
constexpr std::size_t kSummary = 1;
constexpr std::size_t kFields = 3; // and the id

using Fields = std::array<FoldedText, kFields>;

Fields fieldsOf(const Profile& profile) {
    return {FoldedText(QString::fromStdString(profile.meta.name)),
            FoldedText(QString::fromStdString(profile.meta.summary)),
            FoldedText(QString::fromStdString(profile.id))};
}

struct Found {
    std::size_t lastField = 0; ///< that was needed
    std::array<QList<int>, kFields> ranges;
};

std::optional<Found> find(const QStringList& words, const Fields& fields, bool beginsWord) {
    Found found;
    for (const QString& word : words) {
        std::size_t field = 0;
        std::optional<FoldedText::Range> range;
        while (field < kFields && !(range = fields.at(field).find(word, beginsWord)))
            ++field;
        if (!range)
            return std::nullopt;
        found.lastField = std::max(found.lastField, field);
        found.ranges.at(field) += {range->start, range->length};
    }
    return found;
}

} // namespace

std::vector<ListedProfile> foundProfiles(const std::vector<Profile>& profiles, const QString& text) {
    const QStringList words = folded(text).simplified().split(u' ', Qt::SkipEmptyParts);
    std::vector<Fields> fields;
    if (!words.isEmpty())
        std::ranges::transform(profiles, std::back_inserter(fields), fieldsOf);
    std::array<std::vector<ListedProfile>, kFields> ranked;
    bool isFound = false;
    for (const bool beginsWord : {true, false}) {
        for (std::size_t i = 0; i < profiles.size() && !isFound; ++i) {
            std::optional<Found> found = words.isEmpty() ? Found() : find(words, fields[i], beginsWord);
            if (found)
                ranked.at(found->lastField)
                    .push_back(
                        {profiles[i], std::move(found->ranges[kName]), std::move(found->ranges[kSummary])});
        }
        isFound = std::ranges::any_of(ranked, [](const auto& rows) { return !rows.empty(); });
    }
    std::vector<ListedProfile> all;
    for (auto& rows : ranked)
        std::ranges::move(rows, std::back_inserter(all));
    return all;
}

} // namespace selvane
