// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// component-gallery FOLDER: draws the shared components in all their states, one PNG per page, to compare
// with the design drawings.

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTextStream>
#include <QTimer>

#include "Views/shell/QmlModule.h"

namespace {

/// Waits for loading, layout and the page's animations.
void settle() {
    QEventLoop loop;
    QTimer::singleShot(700, &loop, &QEventLoop::quit);
    loop.exec();
}

int fail(const QString& reason) {
    QTextStream(stderr) << "component-gallery: " << reason << '\n';
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    // The same picture everywhere, without a display or a graphics card.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return fail(QStringLiteral("name the folder for the pictures"));
    qml_register_types_Selvane();

    QQmlApplicationEngine engine;
    engine.load(QStringLiteral(SELVANE_GALLERY));
    auto* const window = engine.rootObjects().isEmpty()
                             ? nullptr
                             : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    if (window == nullptr)
        return fail(QStringLiteral("the gallery has no window"));

    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(QStringLiteral("."));
    for (const QString& page : window->property("pages").toStringList()) {
        window->setProperty("page", page);
        settle();
        const QString file = folder.filePath(page + QStringLiteral(".png"));
        if (!window->grabWindow().save(file))
            return fail(file);
    }
    return 0;
}
