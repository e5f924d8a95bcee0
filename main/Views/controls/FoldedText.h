// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace selvane {

/// `text` without case and accents, for comparing what somebody types with what somebody wrote.
QString folded(const QString& text);

/// A text in that form, which still knows where its letters stood.
class FoldedText {
public:
    struct Range {
        int start = 0;
        int length = 0;

        bool operator==(const Range&) const = default;
    };

    FoldedText() = default;
    explicit FoldedText(const QString& text);

    /// Where the folded `part` first stands in the text, in the text's own letters. With `beginsWord`, only
    /// at the beginning of a word.
    std::optional<Range> find(const QString& part, bool beginsWord) const;

private:
    QString m_letters;
    std::vector<int> m_origins; ///< of each letter in the text, and its length
};

} // namespace selvane
