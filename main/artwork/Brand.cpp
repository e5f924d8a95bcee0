// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/Brand.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

#include "platform/services/ModuleFolder.h"

namespace selvane {
namespace {

constexpr int kBodySize = 13;

} // namespace

Brand::Brand(QObject* parent) : QObject(parent) {
    registerFonts();
}

void Brand::registerFonts() {
    readFonts();
    static const bool registered = [] {
        // Qt Quick compares every text with the application's font. The body font is loaded anyway.
        QFont body(displayFamily);
        body.setPixelSize(kBodySize);
        QGuiApplication::setFont(body);
        return true;
    }();
    Q_UNUSED(registered)
}

void Brand::readFonts() {
    static const bool read = [] {
        const QDir folder(QString::fromStdString(resourcePath("Fonts").string()));
        const QStringList kinds = {QStringLiteral("*.ttf"), QStringLiteral("*.woff2")};
        for (const QString& file : folder.entryList(kinds, QDir::Files, QDir::Name))
            QFontDatabase::addApplicationFont(folder.filePath(file));
        return true;
    }();
    Q_UNUSED(read)
}

} // namespace selvane
