// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// The way back from an archive.

#include <memory>
#include <utility>

#include "AppModel/AppModel.h"
#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "platform/text/Text.h"
#include "store/restore/Restore.h"

namespace selvane {
namespace {

QString listedTitles(const std::vector<std::string>& titles) {
    QStringList list;
    for (const std::string& title : titles)
        list.append(qtText(text::singleLine(title)));
    return list.join(QStringLiteral(", "));
}

/// What a trial says would happen.
QString trialNotice(const RestoreReport& report) {
    RestoreCounts sum;
    for (const RestoreReport::Line& line : report.parts) {
        sum.added += line.counts.added;
        sum.changed += line.counts.changed;
        sum.same += line.counts.same;
        sum.gone += line.counts.gone;
    }
    return AppModel::tr("Prova riuscita: %1 file nuovi, %2 diversi, %3 uguali, %4 nel Cestino")
        .arg(sum.added)
        .arg(sum.changed)
        .arg(sum.same)
        .arg(sum.gone);
}

QString interruptionText(const InterruptedRestore& state) {
    std::vector<std::string> restored = state.restored;
    restored.insert(restored.end(), state.begun.begin(), state.begun.end());
    QStringList sentences = {AppModel::tr("Il ripristino da %1 è stato interrotto.")
                                 .arg(qtText(text::singleLine(state.archive.filename().string())))};
    if (!restored.empty())
        sentences.append(AppModel::tr("Ripristinati: %1.").arg(listedTitles(restored)));
    if (!state.untouched.empty())
        sentences.append(AppModel::tr("Rimasti com'erano: %1.").arg(listedTitles(state.untouched)));
    return sentences.join(' ');
}

} // namespace

void AppModel::chooseBackup(std::function<void(CheckedArchive)> checked) {
    ++m_archiveQuestions;
    m_desktop.askForBackup(
        [this, checked = std::move(checked)](const std::optional<std::filesystem::path>& place) {
            --m_archiveQuestions;
            if (!place)
                return;
            const auto archive = std::make_shared<CheckedArchive>(); // written by the work and read after it
            const Work work = [archive, place = *place](ProfileStore& store) {
                *archive = checkArchive(store, place);
                return QString();
            };
            performLong(tr("Controllo dell'archivio…"), work,
                        [archive, checked] { checked(std::move(*archive)); });
        });
}

void AppModel::restoreParts(const CheckedArchive& archive, const std::vector<RestorePart>& parts,
                            Done succeeded) {
    const Work work = [archive, parts](ProfileStore& store) {
        const RestoreReport report = restore(store, archive, parts);
        return counted(static_cast<qsizetype>(report.parts.size()), tr("1 parte ripristinata"),
                       tr("%1 parti ripristinate"));
    };
    performLong(tr("Ripristino…"), work, std::move(succeeded));
}

void AppModel::tryRestoring(const CheckedArchive& archive, const std::vector<RestorePart>& parts) {
    performLong(tr("Prova del ripristino…"), [archive, parts](ProfileStore& store) {
        return trialNotice(tryRestore(store, archive, parts));
    });
}

void AppModel::completeRestoring() {
    std::optional<InterruptedRestore> state;
    try {
        state = interruptedRestore(m_store);
    } catch (const std::exception& error) {
        report(error);
    }
    if (!state)
        return;
    const Work work = [](ProfileStore& store) {
        completeRestore(store);
        return QString();
    };
    performLong(tr("Completamento del ripristino…"), work, [this, text = interruptionText(*state)] {
        setText(m_errorMessage, text, &AppModel::errorMessageChanged);
    });
}

} // namespace selvane
