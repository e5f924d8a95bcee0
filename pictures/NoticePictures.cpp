// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>

#include "Scene.h"
#include "Views/manage/ProfileDetailModel.h"

namespace selvane::test {
namespace {

void waitUntilIdle(const AppModel& model) {
    while (!model.busyMessage().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void press(const Scene& scene, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(scene.launcher.window(kManage), &press);
}

} // namespace

void takeOffer(Scene& scene) {
    ProfileDetailModel detail;
    detail.setApp(&scene.model);
    detail.remove("laboratorio");
    waitUntilIdle(scene.model);
    if (!scene.model.canTakeBack())
        qFatal("nothing can be taken back: %s", qPrintable(scene.model.errorMessage()));
    scene.take(kManage, "notice-offer");
    press(scene, Qt::Key_F6);
    scene.take(kManage, "notice-focus");
    scene.model.takeBack();
    waitUntilIdle(scene.model);
    scene.take(kManage, "notice-taken-back");
    scene.model.clearNotice();
    scene.model.select("lavoro");
}

} // namespace selvane::test
