// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DesktopServices.h"

#include <dlfcn.h>

#include "model/LauncherError.h"
#include "platform/services/Archives.h"
#include "platform/services/ModuleFolder.h"

namespace selvane {

namespace {

constexpr const char* kServices = "libselvane-services.so";
constexpr const char* kArchives = "libselvane-archives.so";

[[noreturn]] void fail(const std::filesystem::path& module) {
    const char* const reason = dlerror();
    std::error_code error;
    const char* const fault = std::filesystem::exists(module, error) ? "non utilizzabile" : "non trovato";
    throw LauncherError("Modulo «" + module.filename().string() + "» " + fault + " in " +
                        module.parent_path().string() + " (" + (reason != nullptr ? reason : "") + ")");
}

void* loadModule(const char* name) {
    const std::filesystem::path module = modulePath(name);
    void* const handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (handle == nullptr)
        fail(module);
    return handle;
}

/// The table returned by a module's function of that name.
template <typename Table>
const Table& table(const char* module, const char* function) {
    const auto hand = reinterpret_cast<const Table* (*)()>(dlsym(loadModule(module), function));
    if (hand == nullptr)
        fail(modulePath(module));
    return *hand();
}

} // namespace

const Services& services() {
    static const auto& known = table<Services>(kServices, "selvane_services");
    return known;
}

const Archives& archives() {
    static const auto& known = table<Archives>(kArchives, "selvane_archives");
    return known;
}

const DesktopServices& desktopServices() {
    static const auto& known = table<DesktopServices>(kServices, "selvane_desktop_services");
    return known;
}

} // namespace selvane
