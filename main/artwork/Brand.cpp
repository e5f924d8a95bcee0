// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/Brand.h"

#include <QDir>
#include <QFontDatabase>

#include "platform/ModuleFolder.h"

namespace selvane {

Brand::Brand(QObject* parent) : QObject(parent) {
    registerFonts();
}

void Brand::registerFonts() {
    static const bool registered = [] {
        const QDir folder(QString::fromStdString(modulePath("Fonts").string()));
        const QStringList kinds = {QStringLiteral("*.ttf"), QStringLiteral("*.woff2")};
        for (const QString& file : folder.entryList(kinds, QDir::Files, QDir::Name))
            QFontDatabase::addApplicationFont(folder.filePath(file));
        return true;
    }();
    Q_UNUSED(registered)
}

} // namespace selvane
