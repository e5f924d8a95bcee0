// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/JsonUpdate.h"

#include <chrono>

#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr auto kPatience = std::chrono::seconds(10);

} // namespace

void updateJson(const fs::path& file,
                const std::function<std::optional<Json>(const JsonState& state)>& change) {
    const FileManager files;
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (std::chrono::steady_clock::now() < deadline) {
        JsonState state;
        state.text = files.readIfPresent(file);
        if (!state.text && files.linkTarget(file))
            throw fs::filesystem_error("read", file,
                                       std::make_error_code(std::errc::no_such_file_or_directory));
        if (state.text)
            state.object = json::parse(*state.text, file);
        if (!state.object.is_object())
            throw JsonError(file.string() + ": non è un oggetto JSON");
        const std::optional<Json> changed = change(state);
        if (!changed || files.writeIfUnchanged(file, state.text, json::serialized(*changed)))
            return;
    }
    throw LauncherError(text::singleLine(file.string()) + " cambia di continuo: chiudi Claude e riprova");
}

} // namespace selvane
