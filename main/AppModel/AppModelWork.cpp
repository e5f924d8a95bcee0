// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// The actions that change many files, each on another thread: creating, importing, backing up.

#include "AppModel/AppModel.h"

#include <QDate>

#include <memory>
#include <utility>

#include "AppModel/Background.h"
#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "platform/files/FolderLock.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

QString copiedSessions(const ImportCount& count) {
    return counted(count.copied, AppModel::tr("1 sessione copiata"), AppModel::tr("%1 sessioni copiate"));
}

} // namespace

/// Whether nothing else is going on; otherwise tells so.
bool AppModel::isFree() {
    if (m_busyMessage.isEmpty())
        return true;
    setText(m_errorMessage,
            tr("Selvane sta già lavorando (%1): riprova quando ha finito.").arg(m_busyMessage),
            &AppModel::errorMessageChanged);
    return false;
}

AppModel::Offer AppModel::offerOf(const std::shared_ptr<Reversal>& reversal, const QString& takenBack) {
    return reversal && reversal->isPossible() ? Offer{reversal, takenBack} : Offer();
}

void AppModel::takeBack() {
    if (!canTakeBack() || !isFree())
        return;
    const Offer offer = m_offer;
    clearNotice();
    // A profile that has been deleted is selected again.
    const QString id = offer.reversal->isDeletion ? qtText(offer.reversal->profiles.front().id) : QString();
    performLong(
        tr("Annullamento…"),
        [offer](ProfileStore& store) {
            store.takeBack(*offer.reversal);
            return offer.takenBack;
        },
        [this, id] {
            if (!id.isEmpty())
                select(id);
        });
}

void AppModel::performSoon(const QString& message, const Work& work, const QString& takenBack) {
    const auto reversal = takenBack.isEmpty() ? nullptr : std::make_shared<Reversal>();
    try {
        const FolderLock::Haste haste;
        ProfileStore store(m_store, nullptr, reversal.get());
        if (const QString notice = work(store); !notice.isEmpty())
            tell(notice, offerOf(reversal, takenBack));
    } catch (const FolderLock::Occupied&) {
        performLong(
            message, work, [] {}, takenBack);
        return;
    } catch (const std::exception& error) {
        report(error);
    }
    reload();
}

void AppModel::performLong(const QString& message, Work work, Done succeeded, const QString& takenBack) {
    if (!isFree())
        return;
    struct Outcome {
        QString notice;
        Failure failure;
        bool isCancelled = false;
    };
    const auto progress = std::make_shared<Progress>();
    const auto reversal = takenBack.isEmpty() ? nullptr : std::make_shared<Reversal>();
    m_workProgress.begin(progress);
    setText(m_busyMessage, message, &AppModel::busyMessageChanged);
    const auto run = [this, progress, reversal, work = std::move(work)] {
        Outcome outcome;
        outcome.failure = failureOf([&] {
            ProfileStore store(m_store, progress.get(), reversal.get());
            outcome.notice = work(store);
        });
        outcome.isCancelled = outcome.failure && progress->isCancelled();
        return outcome;
    };
    const auto done = [this, reversal, takenBack, succeeded = std::move(succeeded)](const Outcome& outcome) {
        m_workProgress.end();
        setText(m_busyMessage, {}, &AppModel::busyMessageChanged);
        reload();
        if (outcome.isCancelled) {
            setNotice(tr("Annullato"));
        } else if (outcome.failure) {
            setText(m_errorMessage, *outcome.failure, &AppModel::errorMessageChanged);
        } else {
            if (!outcome.notice.isEmpty())
                tell(outcome.notice, offerOf(reversal, takenBack));
            succeeded();
        }
    };
    m_work = runInBackground(this, run, done);
}

void AppModel::importSessions(const std::vector<CodeSession>& sessions, const Profile& source,
                              const Profile& target, Done succeeded) {
    const Work work = [sessions, source, target](ProfileStore& store) {
        const ImportCount count = store.importSessions(sessions, source, target);
        if (count.pending < 1)
            return copiedSessions(count);
        return tr("%1, %2 al prossimo avvio di «%3»")
            .arg(counted(count.copied, tr("1 copiata"), tr("%1 copiate")),
                 counted(count.pending, tr("1 aggiunta"), tr("%1 aggiunte")),
                 QString::fromStdString(target.meta.name));
    };
    performLong(tr("Copia delle sessioni…"), work, std::move(succeeded));
}

void AppModel::create(const ProfileRequest& request, Done succeeded) {
    const auto made = std::make_shared<QString>(); // its id, written by the work and read after it
    const Work work = [request, made](ProfileStore& store) -> QString {
        NewProfile wanted = request.profile;
        wanted.isolated = request.isolated ? *request.isolated : store.isolationMatters(wanted);
        const Profile profile = store.create(wanted);
        *made = QString::fromStdString(profile.id);
        if (!request.copySessions || !request.profile.from)
            return {};
        const Profile& source = *request.profile.from;
        const ImportCount count =
            store.importSessions(store.codeSessions(source, Unreadable::fails), source, profile);
        return count.pending < 1 ? copiedSessions(count)
                                 : counted(count.pending, tr("1 sessione verrà aggiunta dopo il primo login"),
                                           tr("%1 sessioni verranno aggiunte dopo il primo login"));
    };
    const QString name = qtText(text::trimmed(request.profile.name));
    performLong(tr("Creazione di «%1»…").arg(name), work, [this, made, succeeded = std::move(succeeded)] {
        select(*made);
        succeeded();
    });
}

void AppModel::exportBackup(BackupScope scope) {
    const QString name = tr("Backup Claude %1.zip").arg(QDate::currentDate().toString(Qt::ISODate));
    ++m_archiveQuestions;
    m_desktop.askForArchive(name, [this, scope](const std::optional<std::filesystem::path>& archive) {
        --m_archiveQuestions;
        if (archive)
            runBackup(scope, *archive);
    });
}

void AppModel::runBackup(BackupScope scope, const std::filesystem::path& archive) {
    const auto made = std::make_shared<std::filesystem::path>(); // written by the work and read after it
    const Work work = [scope, archive, made](ProfileStore& store) {
        const BackupResult result = store.backup(scope, archive);
        *made = result.archive;
        const QString size = QString::fromStdString(text::byteCount(result.size));
        return result.skippedFiles
                   ? tr("Backup creato (%1); alcuni file non leggibili sono stati saltati").arg(size)
                   : tr("Backup creato (%1)").arg(size);
    };
    performLong(tr("Backup in corso…"), work, [this, made] {
        m_desktop.reveal(*made, [] {}); // the notice has told enough
    });
}

} // namespace selvane
