// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cstring>
#include <memory>
#include <string>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include "platform/linux/services/DesktopFunctions.h"

namespace selvane::module {

namespace {

using OwnedApp = std::unique_ptr<GAppInfo, decltype(&g_object_unref)>;

std::string contentType(const char* scheme) {
    return std::string("x-scheme-handler/") + scheme;
}

OwnedApp application(const char* entry) {
    GDesktopAppInfo* const found =
        *entry == '/' ? g_desktop_app_info_new_from_filename(entry) : g_desktop_app_info_new(entry);
    return {found != nullptr ? G_APP_INFO(found) : nullptr, g_object_unref};
}

/// GIO learns of a new entry on another thread, a moment after it was written.
void awaitHandler(const char* scheme, GAppInfo& app) {
    constexpr int kMostLooks = 100;
    for (int look = 0; look < kMostLooks; ++look) {
        const OwnedApp now(g_app_info_get_default_for_uri_scheme(scheme), g_object_unref);
        if (now && g_strcmp0(g_app_info_get_id(now.get()), g_app_info_get_id(&app)) == 0)
            return;
        g_usleep(20'000); // microseconds
    }
}

} // namespace

void schemeHandler(const char* scheme, ByteSink id, void* context) noexcept {
    const OwnedApp app(g_app_info_get_default_for_uri_scheme(scheme), g_object_unref);
    const char* const name = app ? g_app_info_get_id(app.get()) : nullptr;
    if (name != nullptr)
        id(context, name, std::strlen(name));
}

bool setSchemeHandler(const char* scheme, const char* entry, ByteSink message, void* context) noexcept {
    GError* error = nullptr;
    bool isSet = false;
    try {
        const OwnedApp app = application(entry);
        isSet = app &&
                g_app_info_set_as_default_for_type(app.get(), contentType(scheme).c_str(), &error) != FALSE;
        if (isSet)
            awaitHandler(scheme, *app);
        if (error != nullptr && error->message != nullptr)
            message(context, error->message, std::strlen(error->message));
    } catch (...) { // out of memory
    }
    g_clear_error(&error);
    return isSet;
}

void resetSchemeHandler(const char* scheme) noexcept {
    try {
        g_app_info_reset_type_associations(contentType(scheme).c_str());
    } catch (...) { // out of memory
    }
}

} // namespace selvane::module
