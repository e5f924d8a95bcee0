// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/TestHome.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>

#include "AppModel/FakeBridge.h"
#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

QString relativeTo(const fs::path& home, const fs::path& path) {
    const QString text = QString::fromStdString(path.string());
    const QString start = QString::fromStdString(home.string()) + '/';
    return text.startsWith(start) ? "~/" + text.mid(start.size()) : text;
}

QStringList relativeTo(const fs::path& home, const std::vector<fs::path>& paths) {
    QStringList result;
    for (const fs::path& path : paths)
        result += relativeTo(home, path);
    return result;
}

class FakeUpdater final : public Updater {
public:
    bool canCheck() const override { return true; }
    void check() override {}
    bool installsAutomatically() const override { return m_installs; }
    void setInstallsAutomatically(bool value) override { m_installs = value; }

private:
    bool m_installs = false;
};

} // namespace

struct TestHome::Place {
    Home home{Home::Processes::seen};
    FakeBridge bridge;
    Preferences preferences{QString::fromStdString((home / "preferences.conf").string())};
    std::unique_ptr<RunningProcess> claude;
    int sessions = 0;
    // Destroyed before the things that its work on another thread uses.
    AppModel app{home.store, home.claude, bridge, preferences};
};

TestHome::TestHome() : m_updates(std::make_unique<FakeUpdater>()) {
    begin();
}
TestHome::~TestHome() = default;

AppModel* TestHome::app() const {
    return &place().app;
}

void TestHome::begin() {
    m_places.push_back(std::make_unique<Place>());
    if (m_places.size() > 2)
        m_places.pop_front();
    emit begun();
}

void TestHome::write(const QString& path, const QString& content) {
    writeFile(place().home / path.toStdString(), content.toStdString());
}

void TestHome::replace(const QString& path, const QString& content) {
    remove(path);
    write(path, content);
}

void TestHome::remove(const QString& path) {
    fs::remove_all(place().home / path.toStdString());
}

QString TestHome::what(const QString& path) const {
    const fs::path item = place().home / path.toStdString();
    if (fs::is_symlink(item))
        return "-> " + relativeTo(place().home.path, fs::read_symlink(item));
    return fs::is_directory(item) ? QStringLiteral("/") : QString::fromStdString(readFile(item));
}

QString TestHome::absolute(const QString& path) const {
    return QString::fromStdString((place().home / path.toStdString()).string());
}

QString TestHome::makeProfile(const QString& name, const QVariantMap& options) {
    ProfileStore& store = place().home.store;
    const std::string source = options.value("source", "default").toString().toStdString();
    NewProfile wanted = request(name.toStdString(), store.profile(source));
    if (options.contains("account"))
        wanted.account = options.value("account").toString().toStdString();
    const QVariantMap modes = options.value("modes").toMap();
    for (auto mode = modes.begin(); mode != modes.end(); ++mode)
        wanted.modes[component(mode.key().toStdString()).value()] =
            shareMode(mode.value().toString().toStdString()).value();
    const Profile made = store.create(wanted);
    app()->reload();
    return QString::fromStdString(made.id);
}

void TestHome::addSession(const QString& title, const QString& folder) {
    const int number = ++place().sessions;
    write(
        QStringLiteral(".config/Claude/claude-code-sessions/account/organisation/local_%1.json").arg(number),
        QStringLiteral(R"({"sessionId": "%1", "title": "%2", "cwd": "%3", "lastActivityAt": %1})")
            .arg(QString::number(number), title, folder));
}

void TestHome::openClaude(const QString& profileId) {
    const Profile& profile = *app()->profile(profileId);
    Place& here = place();
    Environment environment = {{"PATH", "/bin"}};
    if (!profile.isDefault())
        environment["CLAUDE_CONFIG_DIR"] = profile.configDir.string();
    here.claude = std::make_unique<RunningProcess>(
        std::vector<std::string>{"--user-data-dir=" + here.home.store.desktopDataDir(profile).string()},
        environment);
    here.home.workspace.apps = {here.claude->app()};
    here.home.workspace.whenEnded = [&here] {
        here.claude.reset();
        emit here.bridge.claudeCopiesChanged();
    };
    emit here.bridge.claudeCopiesChanged();
}

void TestHome::closeClaude() {
    FakeWorkspace& workspace = place().home.workspace;
    workspace.apps.clear();
    workspace.whenEnded();
}

void TestHome::loseClaude() {
    place().home.workspace.apps.clear();
    place().claude.reset();
}

void TestHome::ignoreTerminations(int count) {
    place().home.workspace.terminationsIgnored = count;
}

void TestHome::answerArchive(const QString& path) {
    place().bridge.archive = place().home / path.toStdString();
}

QVariantMap TestHome::asked() const {
    const FakeBridge& bridge = place().bridge;
    const FakeWorkspace& workspace = place().home.workspace;
    const auto count = [](const auto& list) { return static_cast<int>(list.size()); };
    return {{"ends", bridge.ends},
            {"clipboard", bridge.clipboard},
            {"revealed", relativeTo(place().home.path, bridge.revealed)},
            {"opened", relativeTo(place().home.path, bridge.opened)},
            {"proposedName", bridge.proposedName},
            {"launches", count(workspace.openings)},
            {"terminated", count(workspace.terminated)},
            {"forced", count(workspace.forced)},
            {"activated", count(workspace.activated)}};
}

void TestHome::act(QObject* control, const QString& action) {
    QAccessible::queryAccessibleInterface(control)->actionInterface()->doAction(action);
}

void TestHome::repeatKey(QObject* window, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(window, &press);
}

} // namespace selvane::test
