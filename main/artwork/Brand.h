// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace selvane {

/// The palette and typefaces, used by the drawing in C++ and, only through Theme.qml, by the windows.
class Brand : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QColor bg MEMBER bg CONSTANT FINAL)
    Q_PROPERTY(QColor bg2 MEMBER bg2 CONSTANT FINAL)
    Q_PROPERTY(QColor bg3 MEMBER bg3 CONSTANT FINAL)
    Q_PROPERTY(QColor fg MEMBER fg CONSTANT FINAL)
    Q_PROPERTY(QColor fg2 MEMBER fg2 CONSTANT FINAL)
    Q_PROPERTY(QColor fg3 MEMBER fg3 CONSTANT FINAL)
    Q_PROPERTY(QColor line MEMBER line CONSTANT FINAL)
    Q_PROPERTY(QColor lineStrong MEMBER lineStrong CONSTANT FINAL)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT FINAL)
    Q_PROPERTY(QColor accent2 MEMBER accent2 CONSTANT FINAL)
    Q_PROPERTY(QColor cool MEMBER cool CONSTANT FINAL)
    Q_PROPERTY(QColor ok MEMBER ok CONSTANT FINAL)
    Q_PROPERTY(QString displayFamily MEMBER displayFamily CONSTANT FINAL)
    Q_PROPERTY(QString serifFamily MEMBER serifFamily CONSTANT FINAL)
    Q_PROPERTY(QString monoFamily MEMBER monoFamily CONSTANT FINAL)

public:
    /// Registers the fonts before any text is laid out.
    explicit Brand(QObject* parent = nullptr);

    /// Makes the fonts in the "Fonts" folder known to this process; only the first call does anything.
    /// Without the folder, the system's own fonts are used. Needs a QGuiApplication. `readFonts` is the part
    /// that takes long; it may be called before, in any thread.
    static void registerFonts();
    static void readFonts();

    static inline const QString name = QStringLiteral("Selvane");

    // Backgrounds, darkest first, then text, strongest first.
    static inline const QColor bg{0x0C, 0x12, 0x10};
    static inline const QColor bg2{0x14, 0x1D, 0x1A};
    static inline const QColor bg3{0x1F, 0x2B, 0x27};
    static inline const QColor fg{0xEF, 0xF3, 0xEE};
    static inline const QColor fg2{0xB8, 0xC4, 0xBD};
    static inline const QColor fg3{0x8E, 0x9C, 0x94};
    static inline const QColor line{0x2B, 0x39, 0x34};
    static inline const QColor lineStrong{0x68, 0x7B, 0x71};
    static inline const QColor accent{0xF2, 0xB7, 0x5E};
    static inline const QColor accent2{0xF5, 0x8E, 0x9C};
    static inline const QColor cool{0x8F, 0xC0, 0xBC};
    static inline const QColor ok{0x86, 0xD0, 0x8A};

    // Names as the font files report them. All weights of the display face share the name of one of them.
    static inline const QString displayFamily = QStringLiteral("Bricolage Grotesque 96pt ExtraBold");
    static inline const QString serifFamily = QStringLiteral("Instrument Serif"); ///< italic only
    static inline const QString monoFamily = QStringLiteral("JetBrains Mono");
};

} // namespace selvane
