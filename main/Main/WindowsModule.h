// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Main/CLI.h"

namespace selvane {

/// The windows and the drawing, in a loadable module so that the command line needs no Qt. The module is
/// loaded on first use. Every function throws `LauncherError` if it isn't installed or can't be loaded.
class WindowsModule final : public Windows {
public:
    /// Runs the windowed application until it ends and returns its exit status.
    int runWindows(int argc, char** argv);
    void renderIcon(const std::filesystem::path& iconset) override;
    void renderDMGBackground(const std::filesystem::path& folder) override;
    void launch(const Profile& profile) override;
    void showError(const std::string& message) override;

private:
    void* function(const char* name);
    void runWindows(std::string request);
    void render(const char* name, const std::filesystem::path& folder);

    void* m_module = nullptr;
};

} // namespace selvane
