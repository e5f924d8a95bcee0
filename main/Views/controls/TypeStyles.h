// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <vector>

#include "Views/controls/TextStyle.h"

namespace selvane {

/// The styles that text is set in. All but the picker's title grow with the desktop's text scale.
class TypeStyles : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(qreal textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged FINAL)
    Q_PROPERTY(selvane::TextStyle* title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* titleSerif MEMBER titleSerif CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* titleCompact MEMBER titleCompact CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* titleSerifCompact MEMBER titleSerifCompact CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* nameField MEMBER nameField CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* emptyTitle MEMBER emptyTitle CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* sheetTitle MEMBER sheetTitle CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* wordmark MEMBER wordmark CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* tagline MEMBER tagline CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* tileName MEMBER tileName CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* alertTitle MEMBER alertTitle CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* busyMessage MEMBER busyMessage CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* sectionTitle MEMBER sectionTitle CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* rowName MEMBER rowName CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* launchLabel MEMBER launchLabel CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* confirmLabel MEMBER confirmLabel CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* smallConfirm MEMBER smallConfirm CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* subtitle MEMBER subtitle CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* field MEMBER field CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* body MEMBER body CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* summary MEMBER summary CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* control MEMBER control CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* menuLabel MEMBER menuLabel CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* notice MEMBER notice CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* noticeAction MEMBER noticeAction CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* smallControl MEMBER smallControl CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* status MEMBER status CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* small MEMBER small CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* fieldLabel MEMBER fieldLabel CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* headerLabel MEMBER headerLabel CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* badge MEMBER badge CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* overline MEMBER overline CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* path MEMBER path CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* listPath MEMBER listPath CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* digit MEMBER digit CONSTANT FINAL)
    Q_PROPERTY(selvane::TextStyle* keyCap MEMBER keyCap CONSTANT FINAL)

public:
    explicit TypeStyles(QObject* parent = nullptr);

    qreal textScale() const { return m_textScale; }
    void setTextScale(qreal scale);

    /// Loads the fonts of the picker into the system's cache, one after the other while `isWanted`: otherwise
    /// laying out its texts waits for each. Needs a QGuiApplication, and the fonts to be registered.
    void preload(const std::function<bool()>& isWanted) const;

signals:
    void textScaleChanged();

private:
    struct Face {
        QString family;
        bool isItalic = false;
        bool isScaled = true;
        QFont::Capitalization capitals = QFont::MixedCase;
    };
    TextStyle* add(const Face& face, int size, qreal line, QFont::Weight weight = QFont::Normal,
                   qreal tracking = 0);
    static const Face kDisplay, kSerif, kMono, kCapitals, kTitle, kTitleSerif;

    qreal m_textScale = 1;
    std::vector<TextStyle*> m_scaled; ///< those that grow

public:
    // Size in pixels, height of a line, weight, letter spacing.
    TextStyle* const title = add(kTitle, 68, 72, QFont::ExtraBold, -2);
    TextStyle* const titleSerif = add(kTitleSerif, 76, 72, QFont::Normal, -1.1);
    TextStyle* const titleCompact = add(kTitle, 52, 56, QFont::ExtraBold, -1.6);
    TextStyle* const titleSerifCompact = add(kTitleSerif, 58, 56, QFont::Normal, -0.9);
    TextStyle* const nameField = add(kDisplay, 26, 32, QFont::ExtraBold, -0.5);
    TextStyle* const emptyTitle = add(kDisplay, 24, 32, QFont::ExtraBold, -0.5);
    TextStyle* const sheetTitle = add(kDisplay, 20, 28, QFont::ExtraBold, -0.3);
    TextStyle* const wordmark = add(kDisplay, 19, 20, QFont::ExtraBold, -0.4);
    TextStyle* const tagline = add(kSerif, 16, 18);
    TextStyle* const tileName = add(kDisplay, 18, 24, QFont::ExtraBold, -0.27);
    TextStyle* const alertTitle = add(kDisplay, 17, 24, QFont::ExtraBold, -0.17);
    TextStyle* const busyMessage = add(kDisplay, 15, 24, QFont::DemiBold);
    TextStyle* const sectionTitle = add(kDisplay, 14, 20, QFont::DemiBold);
    TextStyle* const rowName = add(kDisplay, 14, 18, QFont::DemiBold);
    TextStyle* const launchLabel = add(kDisplay, 14, 20, QFont::DemiBold);
    TextStyle* const confirmLabel = add(kDisplay, 13, 20, QFont::DemiBold);
    TextStyle* const smallConfirm = add(kDisplay, 12, 16, QFont::DemiBold);
    TextStyle* const subtitle = add(kDisplay, 15, 24);
    TextStyle* const field = add(kDisplay, 14, 20);
    TextStyle* const body = add(kDisplay, 13, 20);
    TextStyle* const summary = add(kDisplay, 13, 18);
    TextStyle* const control = add(kDisplay, 13, 16, QFont::Medium);
    TextStyle* const menuLabel = add(kDisplay, 13, 18, QFont::Medium);
    TextStyle* const notice = add(kDisplay, 13, 20, QFont::Medium);
    TextStyle* const noticeAction = add(kDisplay, 13, 20, QFont::DemiBold);
    TextStyle* const smallControl = add(kDisplay, 12, 16, QFont::Medium);
    TextStyle* const status = add(kDisplay, 12, 20, QFont::Medium);
    TextStyle* const small = add(kDisplay, 12, 16);
    TextStyle* const fieldLabel = add(kDisplay, 12, 16, QFont::Medium);
    TextStyle* const headerLabel = add(kDisplay, 11, 16);
    TextStyle* const badge = add(kDisplay, 11, 16, QFont::Medium);
    TextStyle* const overline = add(kCapitals, 11, 16, QFont::Medium, 0.9);
    TextStyle* const path = add(kMono, 12, 16);
    TextStyle* const listPath = add(kMono, 11, 16);
    TextStyle* const digit = add(kMono, 11, 20, QFont::Medium);
    TextStyle* const keyCap = add(kMono, 11, 16, QFont::Medium);
};

} // namespace selvane
