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
//   scroll   through the list of all conversations, 240 pixels a frame; also prints what memory it takes
//   search   in the picker, and
//   sidebar  in the management window's list: looks for a profile by typing. Prints the longest time between
//   two frames after a key, and for how much of such a time the main thread was at work: the most, and the
//   median

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "AppModel/FakeBridge.h"
#include "Views/manage/ProfileListModel.h"
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
            const double work = workDone();
            m_mostWork = std::max(m_mostWork, work - std::exchange(m_workAtLast, work));
            ++m_frames;
            window.update();
        });
        window.update();
    }

    void begin() {
        m_longest = m_frames = 0;
        m_sinceLast.start();
    }
    /// Counts on from the last frame.
    void forget() { m_mostWork = static_cast<double>(m_longest = 0); }
    double longest() const { return static_cast<double>(m_longest) / 1e6; } ///< milliseconds
    double mostWork() const { return m_mostWork; } ///< of this thread between two frames, in milliseconds
    qint64 frames() const { return m_frames; }

private:
    static double workDone() {
        timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    QElapsedTimer m_sinceLast;
    double m_workAtLast = workDone();
    double m_mostWork = 0;
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

/// The most memory that this process has had, in MB.
long peakMemory() {
    struct rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void press(QQuickWindow& window, int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&window, &event);
    }
}

/// The list of all conversations, once it has been read.
QQuickItem* openConversations(QQuickWindow& window) {
    constexpr int kLooks = 500;
    press(window, Qt::Key_F, Qt::ControlModifier);
    for (int look = 0; look < kLooks; ++look) {
        wait(20);
        auto* const list = window.findChild<QQuickItem*>("conversations");
        if (list != nullptr && list->property("count").toInt() > 0)
            return list;
    }
    return nullptr;
}

void scroll(QQuickItem& list, const FrameWatch& frames) {
    constexpr qreal kStep = 240;
    QElapsedTimer duration;
    duration.start();
    for (qint64 seen = 0; duration.elapsed() < kSeconds * 1000;) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (std::exchange(seen, frames.frames()) == frames.frames())
            continue;
        const qreal end = list.property("contentHeight").toReal() - list.height();
        list.setProperty("contentY", std::fmod(list.property("contentY").toReal() + kStep, end));
    }
}

struct SearchTimes { // milliseconds
    double longestGap = 0;
    std::vector<double> work; ///< between two frames after each key
};

/// What typing costs; empty if it finds nothing.
SearchTimes search(QQuickWindow& window, FrameWatch& frames, const QAbstractItemModel& found) {
    constexpr int kSettling = 400; // what has moved has come to rest
    const int all = found.rowCount({});
    int least = all;
    SearchTimes times;
    const auto measured = [&](int key, const QString& text) {
        frames.forget();
        press(window, key, Qt::NoModifier, text);
        wait(kSettling);
        times.longestGap = std::max(times.longestGap, frames.longest());
        times.work.push_back(frames.mostWork());
        least = std::min(least, found.rowCount({}));
    };
    for (const char* const words : {"cli 0001", "figli"}) {
        for (const QChar letter : QString(words))
            measured(0, letter);
        for (int removed = 0; removed < 3; ++removed)
            measured(Qt::Key_Backspace, {});
        measured(Qt::Key_Escape, {});
    }
    return least == 0 || least == all || found.rowCount({}) != all ? SearchTimes() : times;
}

/// Measures a search in a window; the status of the program.
int measureSearch(const QString& job, QQuickWindow& window) {
    const auto* const profiles = window.findChild<ProfileListModel*>();
    FrameWatch frames(window);
    wait(1000); // what the first frames need
    SearchTimes times = profiles == nullptr ? SearchTimes() : search(window, frames, *profiles);
    if (times.work.empty())
        return 1;
    std::ranges::sort(times.work);
    QTextStream(stdout) << QString("%1 %2 profiles, %3 keys, longest gap %4 ms, work %5 ms, "
                                   "median %6 ms\n")
                               .arg(job, -8)
                               .arg(profiles->rowCount({}))
                               .arg(times.work.size())
                               .arg(times.longestGap, 0, 'f', 1)
                               .arg(times.work.back(), 0, 'f', 1)
                               .arg(times.work[times.work.size() / 2], 0, 'f', 1);
    return 0;
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
        return job == "rest" || job == "scroll";
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
    if (job == "search") {
        launcher.showPicker();
        return measureSearch(job, *launcher.window(LauncherApp::Picker));
    }
    launcher.showManage();
    if (job == "sidebar")
        return measureSearch(job, *launcher.window(LauncherApp::Manage));
    QQuickWindow& window = *launcher.window(LauncherApp::Manage);
    FrameWatch frames(window);
    wait(1000); // what the first frames need
    const pid_t holder = job == "lock" ? holdLock(store.root() / "altro") : 0;

    const auto sessions = job == "import" ? store.codeSessions(*store.profile(Profile::kDefaultId))
                                          : std::vector<CodeSession>();

    const long memory = peakMemory();
    QQuickItem* const list = job == "scroll" ? openConversations(window) : nullptr;

    QElapsedTimer duration;
    frames.begin();
    duration.start();
    if (!begin(job, model, bridge, home, sessions)) {
        QTextStream(stderr) << "frame-gaps: no such job: " << job << '\n';
        return 2;
    }
    if (job == "rest")
        wait(kSeconds * 1000);
    if (list != nullptr)
        scroll(*list, frames);
    while (!model.busyMessage().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double seconds = static_cast<double>(duration.elapsed()) / 1000;
    wait(100); // with what its end has to show
    QTextStream(stdout) << QString("%1 %2 s, %3 frames, longest gap %4 ms\n")
                               .arg(job, -8)
                               .arg(seconds, 6, 'f', 2)
                               .arg(frames.frames(), 5)
                               .arg(frames.longest(), 5, 'f', 1);
    if (job == "scroll") {
        if (list == nullptr)
            return 1;
        QTextStream(stdout) << QString("         %1 conversations, %2 MB more than the window alone\n")
                                   .arg(list->property("count").toInt())
                                   .arg(peakMemory() - memory);
    }
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
