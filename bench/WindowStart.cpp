// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

/// window-start ROUNDS PROGRAM...: starts each program in turn, ROUNDS times over, and measures its peak
/// memory and the time until the first frame of its window. The programs needn't cooperate: on a display
/// ($DISPLAY, with nothing else on it) this program looks at the pixels in the middle of the screen; without
/// one the programs run offscreen, and Qt's own log shows when a frame is rendered. Compares the last program
/// with each of the others.

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPatience = 30s;
constexpr auto kLook = 1ms;
constexpr auto kRestAfterFrame = 300ms; // what the program does next counts towards its peak memory

struct Start {
    double milliseconds = 0;
    double megabytes = 0;
};

/// A running program whose standard error is read here. It ends with this object.
class Process {
public:
    explicit Process(const std::string& program) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        m_log = ends[0];
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
        std::string name = program;
        char* arguments[] = {name.data(), nullptr};
        const int error = posix_spawn(&m_pid, program.c_str(), &actions, nullptr, arguments, environ);
        posix_spawn_file_actions_destroy(&actions);
        close(ends[1]);
        if (error != 0)
            throw std::runtime_error("can't start " + program);
    }
    ~Process() {
        if (m_pid > 0)
            end();
        close(m_log);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    int log() const { return m_log; }

    /// Returns the peak memory.
    double end() {
        rusage usage{};
        kill(m_pid, SIGTERM);
        wait4(m_pid, nullptr, 0, &usage);
        m_pid = -1;
        return static_cast<double>(usage.ru_maxrss) / 1024; // in KiB on Linux
    }

private:
    pid_t m_pid = -1;
    int m_log = -1;
};

/// Detects the first frame of a window.
class Watcher {
public:
    virtual ~Watcher() = default;
    /// Waits until nothing is left of the last program.
    virtual void prepare() {}
    virtual bool seesFrame(const Process& process) = 0;
};

class LogWatcher final : public Watcher {
public:
    LogWatcher() {
        setenv("QT_QPA_PLATFORM", "offscreen:configfile=" SELVANE_SCREEN, 1);
        setenv("QT_LOGGING_RULES", "qt.scenegraph.time.renderloop=true", 1);
        setenv("QT_FORCE_STDERR_LOGGING", "1", 1);
    }
    void prepare() override { m_text.clear(); }
    bool seesFrame(const Process& process) override {
        pollfd readable{process.log(), POLLIN, 0};
        if (poll(&readable, 1, 10) == 1) {
            char piece[4096];
            const ssize_t size = read(process.log(), piece, sizeof piece);
            if (size <= 0)
                throw std::runtime_error("the program has ended:\n" + m_text);
            m_text.append(piece, static_cast<std::size_t>(size));
        }
        return m_text.find("rame rendered") != std::string::npos;
    }

private:
    std::string m_text;
};

class ScreenWatcher final : public Watcher {
public:
    ScreenWatcher() : m_connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_connection) != 0)
            throw std::runtime_error("no display");
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }
    ~ScreenWatcher() override { xcb_disconnect(m_connection); }
    ScreenWatcher(const ScreenWatcher&) = delete;
    ScreenWatcher& operator=(const ScreenWatcher&) = delete;

    void prepare() override {
        const auto limit = Clock::now() + kPatience;
        while (colours() != 1) {
            if (Clock::now() > limit)
                throw std::runtime_error("something else is on the display");
            std::this_thread::sleep_for(kLook);
        }
    }
    /// The colours of the screen's background, the window's, and at least one of its contents.
    bool seesFrame(const Process& /*process*/) override {
        if (colours() >= 3)
            return true;
        std::this_thread::sleep_for(kLook);
        return false;
    }

private:
    /// The number of colours in the line across the middle of the screen.
    std::size_t colours() const {
        const auto middle = static_cast<std::int16_t>(m_screen->height_in_pixels / 2);
        const auto request = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, 0, middle,
                                           m_screen->width_in_pixels, 1, ~0U);
        const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image(
            xcb_get_image_reply(m_connection, request, nullptr), std::free);
        if (!image)
            throw std::runtime_error("the display can't be read");
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
        return std::set(pixels, pixels + m_screen->width_in_pixels).size();
    }

    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen = nullptr;
};

Start start(const std::string& program, Watcher& watcher) {
    watcher.prepare();
    const auto begin = Clock::now();
    Process process(program);
    while (!watcher.seesFrame(process)) {
        if (Clock::now() > begin + kPatience)
            throw std::runtime_error(program + " shows nothing");
    }
    const std::chrono::duration<double, std::milli> time = Clock::now() - begin;
    std::this_thread::sleep_for(kRestAfterFrame);
    return {time.count(), process.end()};
}

/// The value below which this part of all values lies.
double quantile(std::vector<double> values, double part) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(std::lround(part * static_cast<double>(values.size() - 1)))];
}

std::vector<double> ratios(const std::vector<Start>& starts, const std::vector<Start>& base,
                           double Start::*value) {
    std::vector<double> result;
    for (std::size_t i = 0; i < starts.size(); ++i)
        result.push_back(starts[i].*value / base[i].*value);
    return result;
}

std::vector<double> all(const std::vector<Start>& starts, double Start::*value) {
    std::vector<double> result;
    for (const Start& each : starts)
        result.push_back(each.*value);
    return result;
}

void report(const std::vector<std::string>& programs, const std::vector<std::vector<Start>>& starts) {
    const auto name = [&](std::size_t i) { return std::filesystem::path(programs[i]).filename().string(); };
    for (std::size_t i = 0; i < programs.size(); ++i) {
        const auto times = all(starts[i], &Start::milliseconds);
        std::printf("%-22s first frame after %4.0f ms (%.0f to %.0f), at most %.1f MB\n", name(i).c_str(),
                    quantile(times, 0.5), quantile(times, 0.25), quantile(times, 0.75),
                    quantile(all(starts[i], &Start::megabytes), 0.5));
    }
    for (std::size_t i = 0; i + 1 < programs.size(); ++i) {
        const auto times = ratios(starts.back(), starts[i], &Start::milliseconds);
        const auto memories = ratios(starts.back(), starts[i], &Start::megabytes);
        std::printf("to %-19s time %.2f times (%.2f to %.2f), memory %.2f times\n", name(i).c_str(),
                    quantile(times, 0.5), quantile(times, 0.25), quantile(times, 0.75),
                    quantile(memories, 0.5));
    }
}

void compare(int rounds, const std::vector<std::string>& programs) {
    std::unique_ptr<Watcher> watcher;
    if (getenv("DISPLAY") != nullptr)
        watcher = std::make_unique<ScreenWatcher>();
    else
        watcher = std::make_unique<LogWatcher>();
    for (const std::string& program : programs)
        start(program, *watcher); // fills the system's caches
    std::vector<std::vector<Start>> starts(programs.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < programs.size(); ++i)
            starts[i].push_back(start(programs[i], *watcher));
    }
    report(programs, starts);
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 2 ? std::atoi(argv[1]) : 0;
    if (rounds < 1) {
        std::fputs("usage: window-start ROUNDS PROGRAM...\n", stderr);
        return 1;
    }
    try {
        compare(rounds, {argv + 2, argv + argc});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "window-start: %s\n", error.what());
        return 1;
    }
    return 0;
}
