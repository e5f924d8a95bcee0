// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "Scene.h"
#include "Views/manage/ConversationListModel.h"
#include "Views/sheets/RestoreForm.h"

namespace selvane::test {
namespace {

constexpr auto kWindow = LauncherApp::Manage;

} // namespace

void takeConversations(Scene& scene) {
    QQuickWindow* const window = scene.launcher.window(kWindow);
    auto* const view = window->findChild<QQuickItem*>(QStringLiteral("manage"));
    QMetaObject::invokeMethod(view, "openConversations");
    auto* const list = view->findChild<ConversationListModel*>();
    while (list->isLoading())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    scene.take(kWindow, "conversations");
    view->findChild<QQuickItem*>(QStringLiteral("conversations"))->setProperty("currentIndex", 1);
    scene.take(kWindow, "conversations-selected");
    scene.takeWith(kWindow, "ContinuationSheet",
                   {{"app", QVariant::fromValue(&scene.model)},
                    {"conversations", QVariant::fromValue(list)},
                    {"row", 1}},
                   "continuation-sheet");
    QMetaObject::invokeMethod(view, "closeConversations");
}

void takeRestore(Scene& scene) {
    const std::filesystem::path archive = scene.model.store().home() / "Backup Claude 2026-03-09.zip";
    scene.model.store().backup(BackupScope::profiles(), archive);
    scene.bridge.archive = archive;
    RestoreForm form;
    form.setApp(&scene.model);
    QEventLoop checked;
    QObject::connect(&form, &RestoreForm::checked, &checked, &QEventLoop::quit);
    QTimer::singleShot(0, &form, &RestoreForm::choose);
    checked.exec();
    scene.takeWith(kWindow, "RestoreSheet",
                   {{"app", QVariant::fromValue(&scene.model)}, {"form", QVariant::fromValue(&form)}},
                   "restore-sheet");
    std::filesystem::remove(archive);
}

} // namespace selvane::test
