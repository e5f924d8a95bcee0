// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/FoldedText.h"

#include <algorithm>

namespace selvane {
namespace {

constexpr char16_t kFirstBeyondAscii = 0x80;

bool isPartOfWord(QChar letter) {
    return letter.isLetterOrNumber() || letter.isSurrogate();
}

} // namespace

QString folded(const QString& text) {
    QString letters = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    letters.removeIf([](QChar letter) { return letter.category() == QChar::Mark_NonSpacing; });
    return letters;
}

FoldedText::FoldedText(const QString& text) {
    m_letters.reserve(text.size());
    m_origins.reserve(static_cast<std::size_t>(text.size()) + 1);
    for (int at = 0; at < text.size();) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size();
        const int length = isPair ? 2 : 1;
        if (text[at].unicode() < kFirstBeyondAscii)
            m_letters += text[at].toLower();
        else
            m_letters += folded(text.mid(at, length));
        m_origins.resize(static_cast<std::size_t>(m_letters.size()), at);
        at += length;
    }
    m_origins.push_back(static_cast<int>(text.size()));
}

std::optional<FoldedText::Range> FoldedText::find(const QString& part, bool beginsWord) const {
    if (part.isEmpty())
        return std::nullopt;
    for (qsizetype at = m_letters.indexOf(part); at >= 0; at = m_letters.indexOf(part, at + 1)) {
        if (beginsWord && at > 0 && isPartOfWord(m_letters[at - 1]) && isPartOfWord(m_letters[at]))
            continue;
        const int start = m_origins.at(static_cast<std::size_t>(at));
        // A letter that became several is found whole, and so are the accents that follow it.
        std::size_t end = static_cast<std::size_t>(at + part.size());
        while (end + 1 < m_origins.size() && m_origins[end] == m_origins[end - 1])
            ++end;
        return Range{start, m_origins[end] - start};
    }
    return std::nullopt;
}

} // namespace selvane
