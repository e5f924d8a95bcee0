// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QEventLoop>

#include "Scene.h"
#include "Views/manage/ProfileDetailModel.h"

namespace selvane::test {
namespace {

void waitUntilIdle(const AppModel& model) {
    while (!model.busyMessage().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
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
    scene.model.takeBack();
    waitUntilIdle(scene.model);
    scene.take(kManage, "notice-taken-back");
    scene.model.clearNotice();
    scene.model.select("lavoro");
}

} // namespace selvane::test
