// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/Services.h"

#include <dlfcn.h>

#include "model/LauncherError.h"
#include "platform/ModuleFolder.h"

namespace selvane {

namespace {

constexpr const char* kModuleName = "libselvane-services.so";
using TableFunction = const Services* (*)();

[[noreturn]] void fail(const std::filesystem::path& module) {
    const char* const reason = dlerror();
    std::error_code error;
    const char* const fault = std::filesystem::exists(module, error) ? "non utilizzabile" : "non trovato";
    throw LauncherError("Modulo «" + module.filename().string() + "» " + fault + " in " +
                        module.parent_path().string() + " (" + (reason != nullptr ? reason : "") + ")");
}

const Services& load() {
    const std::filesystem::path module = modulePath(kModuleName);
    void* const handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (handle == nullptr)
        fail(module);
    const auto table = reinterpret_cast<TableFunction>(dlsym(handle, "selvane_services"));
    if (table == nullptr)
        fail(module);
    return *table();
}

} // namespace

const Services& services() {
    static const Services& table = load();
    return table;
}

} // namespace selvane
