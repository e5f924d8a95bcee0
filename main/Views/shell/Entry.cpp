// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// The module's interface: only plain types cross it, and no exceptions.

#include <QGuiApplication>

#include <cstdio>
#include <exception>

#include "Views/shell/LauncherApp.h"
#include "artwork/Brand.h"
#include "artwork/DMGBackground.h"
#include "artwork/IconRenderer.h"
#include "platform/text/ErrorText.h"

namespace {

using Fail = void(void* context, const char* message) noexcept;

void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*message*/) {}

/// Drawing needs no display, and Qt's warnings about a missing desktop session don't matter.
bool draw(void (*render)(const std::filesystem::path& folder), const char* folder, Fail* fail,
          void* context) noexcept {
    try {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(ignoreMessage);
        char name[] = "selvane";
        char* words[] = {name, nullptr};
        int count = 1;
        const QGuiApplication application(count, words);
        selvane::Brand::registerFonts();
        render(folder);
        return true;
    } catch (const std::exception& error) {
        fail(context, selvane::describe(error).c_str());
        return false;
    }
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) int selvane_run_windows(int argc, char** argv) noexcept {
    try {
        return selvane::runLauncherApp(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "Errore: %s\n", selvane::describe(error).c_str());
        return 1;
    }
}

__attribute__((visibility("default"))) bool selvane_render_icon(const char* folder, Fail* fail,
                                                                void* context) noexcept {
    return draw(&selvane::IconRenderer::render, folder, fail, context);
}

__attribute__((visibility("default"))) bool selvane_render_dmg_background(const char* folder, Fail* fail,
                                                                          void* context) noexcept {
    return draw(&selvane::DMGBackground::render, folder, fail, context);
}

} // extern "C"
