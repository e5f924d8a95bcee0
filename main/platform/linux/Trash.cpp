// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/Trash.h"

#include <string>

#include "platform/Descriptor.h"
#include "platform/linux/Services.h"

namespace selvane {

void moveToTrash(const std::filesystem::path& path) {
    std::string message;
    const auto append = [](void* context, const char* bytes, std::size_t count) {
        static_cast<std::string*>(context)->append(bytes, count);
    };
    if (const int error = services().trash(path.c_str(), append, &message); error != 0)
        files::fail(message.c_str(), path, error);
}

} // namespace selvane
