// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// frame-gaps JOB: shows the management window for $HOME, does a long job in it, and prints how long that took
// and the longest time between two frames meanwhile. The window paints without pause. JOB is one of
//   rest     nothing, for two seconds: what the machine itself needs
//   create   a new profile that takes all that it can from the built-in one as copies
//   import   every session of the built-in profile into the profile "altro"
//   lock     a synchronisation of the profile "altro" while another process holds its lock for two seconds
//   backup   an archive of everything

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <sys/wait.h>
#include <unistd.h>

#include "AppModel/FakeBridge.h"
#include "Views/shell/LauncherApp.h"
#include "Views/shell/QmlModule.h"
#include "artwork/Brand.h"
#include "platform/files/FolderLock.h"
#include "platform/process/Workspace.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr int kSeconds = 2; ///< for which nothing happens, or somebody else holds a lock

/// Keeps a window painting.
class FrameWatch : public QObject {
public:
    explicit FrameWatch(QQuickWindow& window) {
        connect(&window, &QQuickWindow::frameSwapped, this, [this, &window] {
            if (m_sinceLast.isValid())
                m_longest = std::max(m_longest, m_sinceLast.nsecsElapsed());
            m_sinceLast.start();
            ++m_frames;
            window.update();
        });
        window.update();
    }

    void begin() {
        m_longest = m_frames = 0;
        m_sinceLast.start();
    }
    double longest() const { return static_cast<double>(m_longest) / 1e6; } ///< milliseconds
    qint64 frames() const { return m_frames; }

private:
    QElapsedTimer m_sinceLast;
    qint64 m_longest = 0; ///< nanoseconds
    qint64 m_frames = 0;
};

void wait(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Another process that holds the lock of a folder for a while.
pid_t holdLock(const fs::path& folder) {
    const pid_t holder = ::fork();
    if (holder == 0) {
        const FolderLock lock(folder);
        ::sleep(kSeconds);
        ::_exit(0);
    }
    while (FolderLock::ifFree(folder))
        ::usleep(1000);
    return holder;
}

/// Begins a job; false if there is none of that name. `sessions`: those of the built-in profile, which a
/// sheet has read before.
bool begin(const QString& job, AppModel& model, test::FakeBridge& bridge, const fs::path& home,
           const std::vector<CodeSession>& sessions) {
    const Profile builtIn = *model.profile(QString::fromUtf8(Profile::kDefaultId));
    if (job == "create") {
        NewProfile wanted;
        wanted.name = "Copia";
        wanted.from = builtIn;
        for (const Component component : kComponents) {
            const auto modes = allowedModes(component);
            if (std::ranges::find(modes, ShareMode::separate) != modes.end())
                wanted.modes[component] = ShareMode::separate;
        }
        model.create({wanted, false});
    } else if (job == "import") {
        model.importSessions(sessions, builtIn, *model.profile("altro"));
    } else if (job == "lock") {
        model.sync("altro");
    } else if (job == "backup") {
        bridge.archive = home / "copia.zip";
        model.exportBackup(BackupScope::all());
    } else {
        return job == "rest";
    }
    return true;
}

int measure(const QString& job) {
    const Environment environment = currentEnvironment();
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    SystemClock clock;
    const ClaudeApp claude(*workspace, clock, environment);
    ProfileStore store(environment, claude);
    test::FakeBridge bridge;
    const fs::path home = homeFolder(environment);
    Preferences preferences(QString::fromStdString((home / "preferences.conf").string()));
    QQmlEngine engine;
    AppModel model(store, claude, bridge, preferences);
    Updates updates(nullptr);
    LauncherApp launcher(engine, model, updates);
    launcher.showManage();
    FrameWatch frames(*launcher.window(LauncherApp::Manage));
    wait(1000); // what the first frames need
    const pid_t holder = job == "lock" ? holdLock(store.root() / "altro") : 0;

    const auto sessions = job == "import" ? store.codeSessions(*store.profile(Profile::kDefaultId))
                                          : std::vector<CodeSession>();

    QElapsedTimer duration;
    frames.begin();
    duration.start();
    if (!begin(job, model, bridge, home, sessions)) {
        QTextStream(stderr) << "frame-gaps: no such job: " << job << '\n';
        return 2;
    }
    if (job == "rest")
        wait(kSeconds * 1000);
    while (!model.busyMessage().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double seconds = static_cast<double>(duration.elapsed()) / 1000;
    wait(100); // with what its end has to show
    QTextStream(stdout) << QString("%1 %2 s, %3 frames, longest gap %4 ms\n")
                               .arg(job, -8)
                               .arg(seconds, 6, 'f', 2)
                               .arg(frames.frames(), 5)
                               .arg(frames.longest(), 5, 'f', 1);
    if (holder != 0)
        ::waitpid(holder, nullptr, 0);
    if (!model.errorMessage().isEmpty()) {
        QTextStream(stderr) << model.errorMessage() << '\n';
        return 1;
    }
    return 0;
}

} // namespace
} // namespace selvane

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    qml_register_types_Selvane();
    selvane::Brand::registerFonts();
    return selvane::measure(argc > 1 ? argv[1] : QString());
}
