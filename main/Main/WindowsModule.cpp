// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Main/WindowsModule.h"

#include <dlfcn.h>

#include "model/LauncherError.h"
#include "model/WindowRequests.h"
#include "platform/services/ModuleFolder.h"
#include "platform/services/Received.h"

namespace selvane {
namespace {

// The module's interface: only plain types cross it, and no exceptions.
using RunFunction = int (*)(int argc, char** argv) noexcept;
using FailFunction = void (*)(void* context, const char* message) noexcept;
/// Returns whether it succeeded; if not, passes the reason to `fail`.
using RenderFunction = bool (*)(const char* folder, FailFunction fail, void* context) noexcept;

} // namespace

void* WindowsModule::function(const char* name) {
    const std::filesystem::path file = modulePath("libselvane-windows" SELVANE_MODULE_SUFFIX);
    if (!std::filesystem::exists(file))
        throw LauncherError("Le finestre non sono installate, manca il pacchetto selvane-windows: " +
                            file.string());
    if (m_module == nullptr)
        m_module = dlopen(file.c_str(), RTLD_LAZY);
    void* found = m_module == nullptr ? nullptr : dlsym(m_module, name);
    if (found == nullptr)
        throw LauncherError("Il modulo delle finestre non è utilizzabile: " + std::string(dlerror()));
    return found;
}

int WindowsModule::runWindows(int argc, char** argv) {
    return reinterpret_cast<RunFunction>(function("selvane_run_windows"))(argc, argv);
}

void WindowsModule::runWindows(std::string request) {
    std::string name = "selvane";
    char* words[] = {name.data(), request.data(), nullptr};
    runWindows(2, words);
}

void WindowsModule::launch(const Profile& profile) {
    runWindows(std::string(kLaunchRequest) + profile.id);
}

void WindowsModule::showError(const std::string& message) {
    runWindows(std::string(kErrorRequest) + message);
}

void WindowsModule::render(const char* name, const std::filesystem::path& folder) {
    const auto renderFunction = reinterpret_cast<RenderFunction>(function(name));
    using Reason = Received<std::string>;
    Reason reason;
    const auto keepReason = [](void* context, const char* message) noexcept {
        Reason::add(context, [message](std::string& text) { text = message; });
    };
    if (!renderFunction(folder.c_str(), keepReason, &reason))
        throw LauncherError(reason.take());
}

void WindowsModule::renderIcon(const std::filesystem::path& iconset) {
    render("selvane_render_icon", iconset);
}

void WindowsModule::renderDMGBackground(const std::filesystem::path& folder) {
    render("selvane_render_dmg_background", folder);
}

} // namespace selvane
