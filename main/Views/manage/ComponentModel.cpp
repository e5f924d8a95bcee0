// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ComponentModel.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <set>
#include <string_view>
#include <utility>

#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "model/LauncherError.h"
#include "platform/json/Json.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// The number of MCP servers in a global state file; 0 if it can't be read.
int serversIn(const fs::path& globalState) {
    try {
        const Json state = json::parse(FileManager().read(globalState), globalState);
        const Json* servers = json::find(state, "mcpServers");
        return servers == nullptr ? 0 : static_cast<int>(servers->size());
    } catch (const std::exception&) {
        return 0;
    }
}

/// The day on which a file was last changed, such as "9 marzo".
QString dayOf(const fs::path& file) {
    const QDate day = QFileInfo(QFile::decodeName(file.c_str())).lastModified().date();
    const bool isThisYear = day.year() == QDate::currentDate().year();
    return QLocale(QLocale::Italian).toString(day, isThisYear ? "d MMMM" : "d MMMM yyyy");
}

ItemListModel::Kind kindOf(const ComponentItem& item, bool isMerged) {
    if (item.isBroken)
        return ItemListModel::Broken;
    if (!item.isLinked())
        return ItemListModel::Own;
    return isMerged ? ItemListModel::Merged : ItemListModel::Linked;
}

} // namespace

ComponentModel::ComponentModel(Component component, QObject* parent)
    : QObject(parent), m_component(component) {}

void ComponentModel::setProfile(AppModel* app, const Profile* profile) {
    m_app = app;
    const bool isSame = m_profile && profile != nullptr && m_profile->id == profile->id;
    m_profile = profile == nullptr ? std::nullopt : std::optional(*profile);
    if (!isSame) {
        forgetDifference();
        m_items.setFilter({});
        setContent({});
    }
    emit openChanged();
    emit profileChanged();
    emit contentChanged(); // the wording of a count depends on the profile
}

void ComponentModel::setContent(Content content) {
    m_items.setEntries(std::exchange(content.items, {}));
    m_content = std::move(content);
    emit contentChanged();
    readDifferenceAgain();
}

ComponentModel::Content ComponentModel::read(const ProfileStore& store, const Profile& profile,
                                             const std::optional<Profile>& source, Component component) {
    Content content;
    content.isRead = true;
    content.changed = store.changedItems(component, profile);
    if (selvane::isCollection(component)) {
        std::set<std::string_view> changed;
        for (const ChangedItem& item : content.changed)
            changed.insert(item.name);
        for (ComponentItem& item : store.items(component, profile)) {
            const auto kind = changed.contains(item.name)
                                  ? ItemListModel::Changed
                                  : kindOf(item, source && store.isLinked(item, *source, component));
            content.items.push_back({std::move(item), kind});
        }
        return content;
    }
    const FileManager files;
    const fs::path place = profile.url(component);
    try {
        content.exists = files.isPresent(place);
        if (const auto target = files.linkTarget(place))
            content.linkTarget = target->string();
    } catch (const fs::filesystem_error&) { // shown as missing
    }
    if (!content.changed.empty())
        content.changedOn = dayOf(place);
    if (kind(component) == ComponentKind::servers)
        content.serverCount = serversIn(place);
    return content;
}

fs::path ComponentModel::place() const {
    return m_profile->url(m_component);
}

QString ComponentModel::component() const {
    return qtText(rawValue(m_component));
}

QString ComponentModel::title() const {
    return qtText(selvane::title(m_component));
}

QString ComponentModel::symbol() const {
    return qtText(selvane::symbol(m_component));
}

QStringList ComponentModel::modes() const {
    QStringList labels;
    for (const ShareMode mode : allowedModes(m_component))
        labels += qtText(label(mode));
    return labels;
}

QStringList ComponentModel::modeExplanations() const {
    QStringList explanations;
    for (const ShareMode mode : allowedModes(m_component))
        explanations += qtText(help(mode));
    return explanations;
}

int ComponentModel::modeIndex() const {
    if (!m_profile)
        return -1;
    const auto allowed = allowedModes(m_component);
    for (std::size_t i = 0; i < allowed.size(); ++i) {
        if (allowed[i] == m_profile->mode(m_component))
            return static_cast<int>(i);
    }
    return -1;
}

QString ComponentModel::sourceName() const {
    if (m_profile && m_profile->meta.source) {
        if (const Profile* source = m_app->profile(QString::fromStdString(*m_profile->meta.source)))
            return QString::fromStdString(source->meta.name);
    }
    return tr("sorgente");
}

QString ComponentModel::count() const {
    if (!m_content.isRead)
        return {};
    const int total = m_items.total();
    if (total == 0)
        return tr("Nessun elemento");
    const QString elements = counted(total, tr("1 elemento"), tr("%1 elementi"));
    if (m_profile->isDefault() || !m_content.changed.empty())
        return elements;
    const int links = m_items.linkCount();
    return elements + " · " + counted(links, tr("1 unificato"), tr("%1 unificati")) + ", " +
           counted(total - links, tr("1 proprio"), tr("%1 propri"));
}

QString ComponentModel::filterPrompt() const {
    const QString number = QLocale(QLocale::Italian, QLocale::Italy).toString(m_items.total());
    // Before "otto…" and "undici…" the article is another one.
    const bool isEleven = number.startsWith("11") && number.section('.', 0, 0).size() == 2;
    const QString masculine = number.startsWith('8') || isEleven ? tr("gli") : tr("i");
    return tr("Filtra %1 %2 %3")
        .arg(areItemsFeminine(m_component) ? tr("le") : masculine, number, qtText(itemsName(m_component)));
}

bool ComponentModel::isOpen() const {
    return m_app == nullptr || !m_app->preferences().isFolded(component());
}

void ComponentModel::setOpen(bool isOpen) {
    if (m_app == nullptr || isOpen == this->isOpen())
        return;
    m_app->preferences().setFolded(component(), !isOpen);
    emit openChanged();
}

QString ComponentModel::description() const {
    if (!m_content.isRead)
        return {};
    if (m_content.linkTarget)
        return tr("Collegato a %1").arg(linkTarget());
    if (!m_content.changed.empty())
        return tr("Modificato il %1: non segue più «%2»").arg(m_content.changedOn, sourceName());
    if (kind(m_component) != ComponentKind::servers)
        return qtText(selvane::description(m_component, m_content.exists));
    const int count = m_content.serverCount;
    return count > 0 ? qtText(selvane::description(m_component, true)).arg(count)
                     : qtText(selvane::description(m_component, false));
}

QString ComponentModel::linkTarget() const {
    return m_content.linkTarget ? QString::fromStdString(*m_content.linkTarget) : QString();
}

QString ComponentModel::openLabel() const {
    const ComponentKind what = kind(m_component);
    const bool isText = what == ComponentKind::memory || what == ComponentKind::file;
    if (m_content.exists)
        return isText || what == ComponentKind::servers ? tr("Apri") : QString();
    // Creating a file would replace a dangling link.
    return isText && m_content.isRead && !m_content.linkTarget ? tr("Crea") : QString();
}

bool ComponentModel::canReimport() const {
    return hasModes() && !isCollection() && kind(m_component) != ComponentKind::memory;
}

void ComponentModel::setMode(int index) {
    const auto allowed = allowedModes(m_component);
    if (!m_profile || index < 0 || index >= static_cast<int>(allowed.size()) || index == modeIndex())
        return;
    const ShareMode mode = allowed[static_cast<std::size_t>(index)];
    const ShareMode before = m_profile->mode(m_component);
    const QString done = tr("%1: %2").arg(title(), qtText(label(mode)));
    m_app->performLong(
        tr("Cambio di «%1»…").arg(title()),
        [mode, component = m_component, profile = *m_profile, done](ProfileStore& store) {
            store.setMode(mode, component, profile);
            return done;
        },
        [] {}, tr("%1: di nuovo %2").arg(title(), qtText(label(before))));
}

void ComponentModel::reveal() {
    if (!m_profile)
        return;
    m_app->perform([this] { m_app->reveal(FileManager().exists(place()) ? place() : m_profile->configDir); });
}

void ComponentModel::open() {
    if (m_profile)
        m_app->open(place());
}

void ComponentModel::reimport(const QString& profileId) {
    const Profile* profile = m_app->profile(profileId);
    if (profile == nullptr)
        return;
    m_app->performLong(
        tr("Reimportazione di «%1»…").arg(title()),
        [component = m_component, profile = *profile,
         done = tr("%1: reimportati").arg(title())](ProfileStore& store) {
            const auto id = profile.meta.source;
            const auto source = id ? store.profile(*id) : std::nullopt;
            if (!source)
                throw LauncherError("Il profilo da cui «" + profile.meta.name + "» eredita non c'è più");
            store.reimport(component, profile, *source);
            return done;
        },
        [] {}, tr("%1: rimessi com'erano").arg(title()));
}

void ComponentModel::remove(int row) {
    const ComponentItem* item = m_items.item(row);
    if (item == nullptr)
        return;
    const QString name = qtText(item->name);
    const QString done =
        item->isLinked() ? tr("«%1» tolto").arg(name) : tr("«%1» spostato nel Cestino").arg(name);
    m_app->performSoon(
        tr("Rimozione di «%1»…").arg(name),
        [item = *item, profile = *m_profile, component = m_component, done](ProfileStore& store) {
            store.remove(item, profile, component);
            return done;
        },
        tr("«%1» rimesso al suo posto").arg(name));
}

void ComponentModel::makeOwn(int row) {
    if (const ComponentItem* item = m_items.item(row))
        m_app->performLong(tr("Copia di «%1»…").arg(qtText(item->name)),
                           [item = *item, profile = *m_profile](ProfileStore& store) {
                               store.makeOwn(item, profile);
                               return QString();
                           });
}

void ComponentModel::revealItem(int row) {
    if (const ComponentItem* item = m_items.item(row))
        m_app->reveal(item->url);
}

} // namespace selvane
