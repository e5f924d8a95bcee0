// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QKeyEvent>

#include "Scene.h"

namespace selvane::test {
namespace {

void press(QQuickWindow* window, int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(window, &press);
}

} // namespace

void takePicker(Scene& scene) {
    scene.model.select("lavoro");
    scene.launcher.showPicker();
    scene.take(kPicker, "picker");
    for (const char* letter : {"c", "l", "i"})
        press(scene.launcher.window(kPicker), 0, letter);
    scene.take(kPicker, "picker-search");
    press(scene.launcher.window(kPicker), 0, "z");
    scene.take(kPicker, "picker-search-nothing");
    press(scene.launcher.window(kPicker), Qt::Key_Escape);
    scene.resize(kPicker, {720, 560});
    scene.take(kPicker, "picker-narrow");
    scene.resize(kPicker, {980, 660});
}

} // namespace selvane::test
