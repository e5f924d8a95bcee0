// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <cstring>

#include <gio/gio.h>

#include "platform/linux/services/DesktopFunctions.h"

namespace selvane::module {

namespace {

int errnoOf(const GError& error) {
    if (error.domain != G_IO_ERROR)
        return EIO;
    switch (error.code) {
    case G_IO_ERROR_NOT_SUPPORTED:
        return ENOTSUP;
    case G_IO_ERROR_NOT_FOUND:
        return ENOENT;
    case G_IO_ERROR_PERMISSION_DENIED:
        return EACCES;
    case G_IO_ERROR_NO_SPACE:
        return ENOSPC;
    case G_IO_ERROR_READ_ONLY:
        return EROFS;
    default:
        return EIO;
    }
}

} // namespace

int trash(const char* path, ByteSink message, void* context) noexcept {
    // Use the local implementation directly: the default one may first start the desktop's virtual file
    // system over D-Bus, which a local file doesn't need.
    GFile* const file = g_vfs_get_file_for_path(g_vfs_get_local(), path);
    GError* error = nullptr;
    int result = 0;
    if (g_file_trash(file, nullptr, &error) == FALSE) {
        result = error != nullptr ? errnoOf(*error) : EIO;
        if (error != nullptr && error->message != nullptr)
            message(context, error->message, std::strlen(error->message));
    }
    g_clear_error(&error);
    g_object_unref(file);
    return result;
}

} // namespace selvane::module
