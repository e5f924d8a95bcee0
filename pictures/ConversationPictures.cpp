// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

#include "Scene.h"
#include "Views/manage/ConversationListModel.h"
#include "Views/sheets/RestoreForm.h"
#include "support/Files.h"

namespace selvane::test {
namespace {

std::int64_t hoursAgo(int hours) {
    using namespace std::chrono;
    return duration_cast<milliseconds>((system_clock::now() - std::chrono::hours(hours)).time_since_epoch())
        .count();
}

/// Begun in a terminal.
void sayInTerminal(const std::filesystem::path& config, const std::string& id, const std::string& words,
                   const std::string& folder, int hours) {
    const QString time = QDateTime::fromMSecsSinceEpoch(hoursAgo(hours)).toUTC().toString(Qt::ISODateWithMs);
    const std::string line = R"({"type": "user", "cwd": ")" + folder + R"(", "timestamp": ")" +
                             time.toStdString() + R"(", "message": {"role": "user", "content": ")" + words +
                             "\"}}\n";
    writeFile(config / "projects/-progetti" / (id + ".jsonl"), line + std::string(860'000, '\n') + line);
}

/// Begun in the Code tab.
void workInApp(const std::filesystem::path& config, const std::filesystem::path& place, const std::string& id,
               const std::string& title, int hours, const std::string& more = {}) {
    writeFile(place / ("local_" + id + ".json"), R"({"sessionId": "local_)" + id + R"(", "cliSessionId": ")" +
                                                     id + R"(", "title": ")" + title +
                                                     R"(", "cwd": "~/progetti/vetrina", "lastActivityAt": )" +
                                                     std::to_string(hoursAgo(hours)) + more + "}");
    writeFile(config / "projects/-progetti" / (id + ".jsonl"), std::string(1'400'000, '\n'));
}

/// Something of every kind, in several profiles.
void addConversations(const ProfileStore& store) {
    const Profile work = store.profile("lavoro").value();
    const Profile client = store.profile("cliente-aurora").value();
    sayInTerminal(work.configDir, "7d20c4e8-2b6f-4c52-9a55-0c1f7f1a9e10",
                  "perché il test dei resi fallisce solo il lunedì?", "~/progetti/ordini", 2);
    sayInTerminal(store.defaultDir(), "b1c7a552-6f0e-4a51-8f0e-51f6d0b4e7aa",
                  "script per le fatture del trimestre", "~/documenti/fatture", 27);
    const auto account = store.desktopDataDir(client) / "claude-code-sessions/conto";
    workInApp(client.configDir, account / "vetrina", "3f9c21ab-0d34-4f0e-b1a7-7c0d2b9a4e55",
              "Rifare la pagina dei prezzi", 1);
    workInApp(client.configDir, account / "principale", "9a01b7c2-55d0-4a37-b2c9-2f6f0e8d1c33",
              "Capitolo 3, revisione delle note", 50, R"(, "isArchived": true)");
}

} // namespace

void takeConversations(Scene& scene) {
    addConversations(scene.model.store());
    QQuickWindow* const window = scene.launcher.window(kManage);
    auto* const view = window->findChild<QQuickItem*>(QStringLiteral("manage"));
    QMetaObject::invokeMethod(view, "openConversations");
    auto* const list = view->findChild<ConversationListModel*>();
    while (list->isLoading())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    scene.take(kManage, "conversations");
    view->findChild<QQuickItem*>(QStringLiteral("conversations"))->setProperty("currentIndex", 1);
    scene.take(kManage, "conversations-selected");
    scene.takeWith(kManage, "ContinuationSheet",
                   {{"app", QVariant::fromValue(&scene.model)},
                    {"conversations", QVariant::fromValue(list)},
                    {"row", 0}},
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
    scene.takeWith(kManage, "RestoreSheet",
                   {{"app", QVariant::fromValue(&scene.model)}, {"form", QVariant::fromValue(&form)}},
                   "restore-sheet");
    std::filesystem::remove(archive);
}

} // namespace selvane::test
