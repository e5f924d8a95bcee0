// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/SearchText.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace selvane {
namespace {

bool isTyped(const QString& text) {
    const auto isShown = [](QChar letter) { return letter.isPrint() || letter.isSurrogate(); };
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isShown);
}

} // namespace

bool SearchText::take(int key, int modifiers, const QString& typed) {
    constexpr int kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((modifiers & kCommands) != 0)
        return false;
    if (key == Qt::Key_Escape || key == Qt::Key_Backspace) {
        if (m_text.isEmpty())
            return false;
        QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, m_text);
        letters.toEnd();
        setText(key == Qt::Key_Escape ? QString() : m_text.left(letters.toPreviousBoundary()));
        return true;
    }
    const bool isDigit = typed.size() == 1 && typed[0].isDigit();
    if (!isTyped(typed) || (m_text.isEmpty() && (typed[0].isSpace() || (isDigit && !m_beginsWithDigits))))
        return false;
    if (m_text.size() + typed.size() <= kLongest)
        setText(m_text + typed);
    return true;
}

void SearchText::setText(const QString& text) {
    if (m_text == text)
        return;
    m_text = text;
    emit textChanged();
}

} // namespace selvane
