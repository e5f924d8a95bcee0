// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <QTimer>

#include <optional>
#include <vector>

#include "Views/ApplicationWatch.h"

namespace selvane {
namespace {

constexpr int kFirstLookMilliseconds = 200; // once the window is there
constexpr int kLookMilliseconds = 2000;

/// Looks at the processes from time to time.
class ProcessWatch final : public ApplicationWatch {
public:
    explicit ProcessWatch(Workspace& workspace) : m_workspace(workspace) {
        m_timer.setInterval(kLookMilliseconds);
        connect(&m_timer, &QTimer::timeout, this, &ProcessWatch::look);
    }

    void setWatching(bool watches) override {
        if (!watches) {
            m_timer.stop();
            return;
        }
        if (m_timer.isActive())
            return;
        m_timer.start();
        QTimer::singleShot(kFirstLookMilliseconds, this, &ProcessWatch::look);
    }

private:
    void look() {
        std::vector<RunningApplication> copies = m_workspace.running(ProcInfo::all());
        if (copies == m_copies)
            return;
        m_copies = std::move(copies);
        emit changed();
    }

    Workspace& m_workspace;
    QTimer m_timer;
    std::optional<std::vector<RunningApplication>> m_copies; ///< none before the first look
};

} // namespace

std::unique_ptr<ApplicationWatch> makeApplicationWatch(Workspace& workspace) {
    return std::make_unique<ProcessWatch>(workspace);
}

} // namespace selvane
