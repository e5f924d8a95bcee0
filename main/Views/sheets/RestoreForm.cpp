// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/RestoreForm.h"

#include <QDateTime>
#include <QLocale>
#include <QPointer>

#include <algorithm>
#include <set>

#include "AppModel/Following.h"
#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "platform/text/Text.h"
#include "store/restore/Restore.h"

namespace selvane {
namespace {

using PartKind = RestorePart::Kind;

const QLocale& localeOfArchives() {
    static const QLocale locale(QLocale::Italian, QLocale::Italy);
    return locale;
}

std::string keyOfPart(const RestorePart& part) {
    return std::to_string(static_cast<int>(part.kind)) + " " + part.id;
}

QString groupOfPart(const RestorePart& part) {
    switch (part.kind) {
    case PartKind::principal:
        return RestoreForm::tr("Configurazione principale");
    case PartKind::profile:
        return RestoreForm::tr("Profili");
    case PartKind::account:
        return RestoreForm::tr("Dati degli account");
    case PartKind::terminalHelper:
        break;
    }
    return RestoreForm::tr("Comando da terminale");
}

QString titleOfPart(const RestorePart& part) {
    if (part.kind == PartKind::terminalHelper)
        return QStringLiteral("claude-profile");
    const QString name = QString::fromStdString(part.name);
    return part.isRecordOnly() ? RestoreForm::tr("Nome e simbolo di «%1»").arg(name) : name;
}

QString detailOfPart(const RestorePart& part) {
    if (part.kind == PartKind::terminalHelper)
        return {};
    QStringList facts = {qtText(text::byteCount(part.bytes))};
    if (part.modified > 0)
        facts.append(localeOfArchives().toString(QDateTime::fromSecsSinceEpoch(part.modified).date(),
                                                 QStringLiteral("d MMM yyyy")));
    return facts.join(QStringLiteral(" · "));
}

ProfileLook lookOfPart(const RestorePart& part) {
    if (part.kind == PartKind::principal || part.kind == PartKind::profile)
        return part.look;
    return {.symbol = part.kind == PartKind::account ? "person.badge.key" : "terminal", .color = {}};
}

QString fateOfPart(const RestorePart& part) {
    if (part.kind == PartKind::terminalHelper)
        return RestoreForm::tr("si riscrive");
    return part.replaces ? RestoreForm::tr("già presente: andrà nel Cestino") : QString();
}

/// The first of many names, each on one line.
QString someNames(const QStringList& names) {
    constexpr qsizetype kMost = 3;
    return names.mid(0, kMost).join(QStringLiteral(", ")) + (names.size() > kMost ? QStringLiteral("…") : "");
}

} // namespace

RestoreForm::RestoreForm(QObject* parent) : QObject(parent) {
    connect(&m_parts, &ChoiceListModel::chosenChanged, this, &RestoreForm::lookForClaude);
}

void RestoreForm::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::claudeCopiesChanged, this, &RestoreForm::lookForClaude);
        connect(&followed, &AppModel::reloaded, this, &RestoreForm::lookForClaude);
    };
    if (follow(app, m_app, this, connectTo))
        emit appChanged();
}

void RestoreForm::choose() {
    m_app->chooseBackup([form = QPointer(this)](CheckedArchive archive) {
        if (form)
            form->take(std::move(archive));
    });
}

void RestoreForm::take(CheckedArchive archive) {
    m_archive = std::move(archive);
    std::vector<ChoiceListModel::Entry> entries;
    for (const RestorePart& part : m_archive.parts)
        entries.push_back({.key = keyOfPart(part),
                           .title = titleOfPart(part),
                           .detail = detailOfPart(part),
                           .isChosen = true,
                           .aside = fateOfPart(part),
                           .mark = part.replaces ? QString() : tr("nuovo"),
                           .group = groupOfPart(part),
                           .look = lookOfPart(part),
                           .isProfile = part.kind == PartKind::principal || part.kind == PartKind::profile});
    m_parts.setEntries(std::move(entries));
    emit archiveChanged();
    lookForClaude();
    emit checked();
}

QString RestoreForm::fileName() const {
    return qtText(text::singleLine(m_archive.file.filename().string()));
}

QString RestoreForm::facts() const {
    const QDateTime made = QDateTime::fromSecsSinceEpoch(m_archive.created);
    return QStringList{localeOfArchives().toString(made, QStringLiteral("d MMMM yyyy, HH:mm")),
                       qtText(text::byteCount(m_archive.size)),
                       counted(m_archive.files, tr("1 voce verificata"), tr("%1 voci verificate"))}
        .join(QStringLiteral(" · "));
}

QStringList RestoreForm::warnings() const {
    QStringList left;
    QStringList away;
    for (const ForeignLink& link : m_archive.foreignLinks)
        (link.isLeftOut ? left : away).append(qtText(text::singleLine(link.path)));
    QStringList others;
    for (const std::string& name : m_archive.others)
        others.append(qtText(text::singleLine(name)));
    QStringList list;
    if (!m_archive.formerHome.empty())
        list.append(tr("Viene da %1: i percorsi si adattano a questa cartella home.")
                        .arg(qtText(text::singleLine(m_archive.formerHome.string()))));
    if (!left.empty())
        list.append(tr("Portano fuori dalla cartella home e restano fuori: %1").arg(someNames(left)));
    if (!away.empty())
        list.append(tr("Collegamenti ad altre cartelle della home: %1").arg(someNames(away)));
    if (!others.empty())
        list.append(tr("Nell'archivio ma non da ripristinare: %1").arg(someNames(others)));
    return list;
}

std::vector<RestorePart> RestoreForm::chosen() const {
    const std::set<std::string> keys = m_parts.chosenKeys();
    std::vector<RestorePart> parts;
    for (const RestorePart& part : m_archive.parts) {
        if (keys.contains(keyOfPart(part)))
            parts.push_back(part);
    }
    return parts;
}

QString RestoreForm::trashed() const {
    const std::vector<RestorePart> parts = chosen();
    const auto count = std::ranges::count_if(parts, [](const RestorePart& part) {
        return part.replaces && part.kind != PartKind::terminalHelper;
    });
    return count == 0 ? QString() : counted(count, tr("1 andrà nel Cestino"), tr("%1 andranno nel Cestino"));
}

/// On another thread, because it looks at every process.
void RestoreForm::lookForClaude() {
    emit chosenChanged();
    if (m_app == nullptr || m_archive.parts.empty())
        return;
    const auto read = [&store = m_app->store(), parts = chosen()] {
        try {
            return !partsInUse(store, parts).empty();
        } catch (const std::exception&) { // the restore itself will say why
            return false;
        }
    };
    m_reading.begin(read, [this](bool claudeRuns) {
        m_claudeRuns = claudeRuns;
        emit chosenChanged();
    });
}

void RestoreForm::tryOnly() {
    if (const std::vector<RestorePart> parts = chosen(); !parts.empty())
        m_app->tryRestoring(m_archive, parts);
}

void RestoreForm::submit() {
    if (!canRestore())
        return;
    m_app->restoreParts(m_archive, chosen(), [form = QPointer(this)] {
        if (form)
            emit form->succeeded();
    });
}

} // namespace selvane
