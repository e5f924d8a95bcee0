// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ContinuationForm.h"

#include <QDateTime>
#include <QLocale>
#include <QPointer>
#include <QVariantMap>

#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "Views/sheets/ConversationTexts.h"
#include "platform/text/Text.h"
#include "store/conversations/ResumeCommand.h"

namespace selvane {
namespace {

using Record = Continuation::Record;

QString longDay(std::int64_t seconds) {
    return QLocale(QLocale::Italian, QLocale::Italy)
        .toString(QDateTime::fromSecsSinceEpoch(seconds).date(), QStringLiteral("d MMMM yyyy"));
}

QString nameInQuotes(const Profile& profile) {
    return "«" + QString::fromStdString(profile.meta.name) + "»";
}

/// Whether the conversation gets a record in one of the account's organisations.
bool placesRecord(const Continuation& plan) {
    return plan.record == Record::now || plan.record == Record::atNextLaunch;
}

/// Whose account a profile uses.
QString accountNote(const Profile& profile, const AppModel& app) {
    const std::string owner = profile.accountOwner();
    if (owner == profile.id)
        return profile.isDefault() ? QString() : ContinuationForm::tr("account proprio");
    const Profile* const other = app.profile(QString::fromStdString(owner));
    return other == nullptr ? QString()
                            : ContinuationForm::tr("stesso account di %1").arg(nameInQuotes(*other));
}

} // namespace

void ContinuationForm::componentComplete() {
    m_list = m_conversations->list();
    m_conversation = m_conversations->conversation(m_row);
    const Profile* const own = origin();
    for (const Profile& profile : m_app->profiles()) {
        if (own != nullptr && profile.id != own->id)
            m_targets.push_back(profile);
    }
    emit inputChanged();
    emit targetsChanged();
    plan();
}

const Profile* ContinuationForm::origin() const {
    return m_conversation == nullptr ? nullptr : &m_list->profiles.at(m_conversation->places.front().profile);
}

const Profile* ContinuationForm::chosen() const {
    const auto position = static_cast<std::size_t>(m_target);
    return position < m_targets.size() ? &m_targets[position] : nullptr;
}

QString ContinuationForm::title() const {
    return m_conversation == nullptr ? QString() : qtText(text::singleLine(m_conversation->title));
}

LookValue ContinuationForm::look() const {
    return origin() == nullptr ? LookValue() : LookValue(origin()->meta.look);
}

QString ContinuationForm::facts() const {
    if (origin() == nullptr)
        return {};
    QStringList facts = {shortFolder(m_conversation->cwd, m_app->store().home()),
                         QString::fromStdString(origin()->meta.name),
                         qtText(text::byteCount(m_conversation->size()))};
    facts.removeAll(QString());
    return facts.join(QStringLiteral(" · "));
}

QVariantList ContinuationForm::targets() const {
    QVariantList list;
    for (const Profile& profile : m_targets)
        list.append(QVariantMap{{"name", QString::fromStdString(profile.meta.name)},
                                {"look", lookVariant(profile.meta.look)},
                                {"note", accountNote(profile, *m_app)},
                                {"isOpen", m_app->running().contains(profile.id)}});
    return list;
}

void ContinuationForm::setTarget(int position) {
    if (position == m_target)
        return;
    m_target = position;
    m_organisation = 0;
    setOrganisations({});
    plan();
}

QVariantList ContinuationForm::organisations() const {
    QVariantList list;
    for (std::size_t i = 0; m_organisations.size() > 1 && i < m_organisations.size(); ++i) {
        const OrganisationFolder& each = m_organisations[i];
        const QString day = longDay(each.lastUsed);
        const QString count = counted(each.sessions, tr("1 sessione"), tr("%1 sessioni"));
        list.append(
            QVariantMap{{"name", each.name.empty() ? tr("Senza nome") : qtText(text::singleLine(each.name))},
                        {"shortId", qtText(text::singleLine(each.id)).left(8)},
                        {"note", (i == 0 ? tr("usata per ultima, %1").arg(day) : day) + " · " + count}});
    }
    return list;
}

QString ContinuationForm::organisationQuestion() const {
    static const QStringList kWords = {tr("due"), tr("tre"), tr("quattro"), tr("cinque")};
    const auto count = static_cast<qsizetype>(m_organisations.size());
    return tr("L'account ha %1 organizzazioni: in quale?")
        .arg(kWords.value(count - 2, QString::number(count)));
}

void ContinuationForm::setOrganisation(int position) {
    if (position == m_organisation)
        return;
    m_organisation = position;
    plan();
}

void ContinuationForm::setOrganisations(std::vector<OrganisationFolder> organisations) {
    if (m_organisations == organisations)
        return;
    m_organisations = std::move(organisations);
    emit organisationsChanged();
}

std::optional<std::filesystem::path> ContinuationForm::folder() const {
    const auto position = static_cast<std::size_t>(m_organisation);
    return m_organisations.size() > 1 && position < m_organisations.size()
               ? std::optional(m_organisations[position].folder)
               : std::nullopt;
}

void ContinuationForm::plan() {
    m_plan.reset();
    const Profile* const wanted = chosen();
    if (wanted != nullptr) {
        const auto read = [&store = m_app->store(), list = m_list, conversation = m_conversation,
                           profile = *wanted, folder = folder()]() -> std::optional<Plan> {
            try {
                return Plan{store.planContinuation(*list, *conversation, profile, folder),
                            store.organisationFolders(profile)};
            } catch (const std::exception&) { // an account that can't be; continuing would say why
                return std::nullopt;
            }
        };
        m_reading.begin(read, [this](std::optional<Plan> plan) {
            m_plan = plan ? plan->what : Continuation();
            setOrganisations(plan && placesRecord(plan->what) ? plan->organisations
                                                              : std::vector<OrganisationFolder>());
            emit planChanged();
        });
    }
    emit planChanged();
}

QString ContinuationForm::when() const {
    if (!m_plan || chosen() == nullptr)
        return {};
    const QString name = nameInQuotes(*chosen());
    switch (m_plan->record) {
    case Record::now:
        return tr("Claude non è aperto con questo account: la conversazione si aggiunge subito e %1 si "
                  "avvia.")
            .arg(name);
    case Record::atNextLaunch:
        return m_organisations.empty()
                   ? tr("La conversazione si aggiunge dopo il primo accesso di %1.").arg(name)
                   : tr("Claude è aperto con questo account: la conversazione si aggiunge al prossimo "
                        "avvio.");
    case Record::present:
        return tr("La voce è già nell'elenco di %1, che si avvia.").arg(name);
    case Record::none:
        break;
    }
    return tr("È una conversazione del terminale: il comando per riprenderla in %1 va negli appunti.")
        .arg(name);
}

QString ContinuationForm::copies() const {
    if (!m_plan || chosen() == nullptr || origin() == nullptr)
        return {};
    const QString size = qtText(text::byteCount(m_plan->bytes));
    QString sentence = tr("La trascrizione è già in %1.").arg(nameInQuotes(*chosen()));
    if (m_plan->copied + m_plan->replaced > 0)
        sentence =
            (placesRecord(*m_plan)
                 ? tr("Si copiano la trascrizione (%1) e la voce nell'elenco; l'originale resta in %2.")
                 : tr("Si copia la trascrizione (%1); l'originale resta in %2."))
                .arg(size, nameInQuotes(*origin()));
    if (m_plan->kept > 0)
        sentence =
            tr("In %1 c'è una copia più recente o più lunga: resta quella.").arg(nameInQuotes(*chosen()));
    if (m_plan->replaced > 0)
        sentence += ' ' + tr("La copia più vecchia di %1 va nel Cestino.").arg(nameInQuotes(*chosen()));
    return sentence;
}

QString ContinuationForm::confirmText() const {
    if (m_plan && m_plan->record == Record::atNextLaunch)
        return tr("Aggiungi al prossimo avvio");
    return chosen() == nullptr ? tr("Continua") : tr("Continua in %1").arg(nameInQuotes(*chosen()));
}

void ContinuationForm::submit() {
    if (chosen() == nullptr || !m_plan)
        return;
    const AppModel::Work work = [list = m_list, conversation = m_conversation, profile = *chosen(),
                                 folder = folder()](ProfileStore& store) {
        const ImportCount count = store.continueIn(*list, *conversation, profile, folder);
        return count.pending > 0 ? tr("Si aggiunge al prossimo avvio di %1").arg(nameInQuotes(profile))
                                 : QString();
    };
    const auto done = [form = QPointer(this), app = m_app, list = m_list, conversation = m_conversation,
                       profile = *chosen(), record = m_plan->record] {
        if (form)
            emit form->succeeded();
        if (record == Record::none)
            app->copyCommand(
                [&](const auto& helper) { return resumeCommand(helper, *conversation, profile); });
        else if (record != Record::atNextLaunch)
            app->launch(QString::fromStdString(profile.id));
    };
    m_app->performLong(tr("Copia della conversazione…"), work, done);
}

} // namespace selvane
