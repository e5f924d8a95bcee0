// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/TypeStyles.h"

#include <QTextLayout>

#include "artwork/Brand.h"

namespace selvane {

const TypeStyles::Face TypeStyles::kDisplay{Brand::displayFamily};
const TypeStyles::Face TypeStyles::kTitle{Brand::displayFamily, false, false};
const TypeStyles::Face TypeStyles::kSerif{Brand::serifFamily, true};
const TypeStyles::Face TypeStyles::kTitleSerif{Brand::serifFamily, true, false};
const TypeStyles::Face TypeStyles::kMono{Brand::monoFamily};
const TypeStyles::Face TypeStyles::kCapitals{Brand::monoFamily, false, true, QFont::AllUppercase};

TypeStyles::TypeStyles(QObject* parent) : QObject(parent) {}

void TypeStyles::setTextScale(qreal scale) {
    if (scale == m_textScale)
        return;
    m_textScale = scale;
    for (TextStyle* style : m_scaled)
        style->setScale(scale);
    emit textScaleChanged();
}

void TypeStyles::preload(const std::function<bool()>& isWanted) const {
    for (const TextStyle* style : {title, titleSerif, tileName, summary, wordmark, tagline, overline, control,
                                   subtitle, confirmLabel, small, status, keyCap}) {
        if (!isWanted())
            return;
        QTextLayout layout(QStringLiteral("Profili"), style->font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
    }
}

TextStyle* TypeStyles::add(const Face& face, int size, qreal line, QFont::Weight weight, qreal tracking) {
    QFont font(face.family);
    font.setPixelSize(size);
    font.setWeight(weight);
    font.setItalic(face.isItalic);
    font.setCapitalization(face.capitals);
    if (tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    auto* style = new TextStyle(font, line, this);
    if (face.isScaled)
        m_scaled.push_back(style);
    return style;
}

} // namespace selvane
