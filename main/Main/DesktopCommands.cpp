// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <exception>
#include <functional>
#include <optional>
#include <ostream>

#include "Main/Arguments.h"
#include "Main/Commands.h"
#include "model/LauncherError.h"
#include "platform/text/ErrorText.h"

namespace selvane::CLI {
namespace {

constexpr std::string_view kUnknown = "non si sa";

/// Whether a copy that is open with another profile is closed first.
enum class Takeover { atOnce, asked };

/// Returns false, and has done nothing, if that has to be asked.
bool tryToLaunch(const Call& call, const Profile& target, Takeover takeover) {
    ProfileStore& store = call.store;
    if (const auto open = store.instance(target)) {
        if (store.runs(*open, target)) {
            call.claude.activate(*open); // where that can't be had, it stays where it is
            return true;
        }
        if (takeover == Takeover::asked)
            return false;
        call.claude.requireApplication(); // don't close anything unless Claude can be opened again
        // If another copy takes its place meanwhile, the launch reports that.
        const auto hasLeft = [&] { return store.hasLeft(*open, target); };
        if (!call.claude.quit({*open}, ClaudeApp::QuitKind::polite, ClaudeApp::kQuitTimeout, hasLeft))
            throw LauncherError("Claude non si è chiuso");
    }
    call.claude.launch(target, store);
    return true;
}

/// What has failed is more important than that the windows can't be shown.
void tell(const std::function<void()>& show) {
    try {
        show();
    } catch (const LauncherError&) {
    }
}

/// From a menu, where nobody sees what is printed, and nobody has agreed to close anything.
void launchFromMenu(const Call& call) {
    std::optional<Profile> target;
    try {
        target = profile(call);
        if (!tryToLaunch(call, *target, Takeover::asked))
            call.windows.launch(*target);
    } catch (const NotInstalledError&) { // the windows say what to do about it
        tell([&] { call.windows.launch(*target); });
        throw;
    } catch (const std::exception& error) {
        tell([&] { call.windows.showError(describe(error)); });
        throw;
    }
}

} // namespace

void launch(const Call& call) {
    if (call.arguments.size() > 2 && call.arguments[2] == kWindowsOption)
        launchFromMenu(call);
    else
        tryToLaunch(call, profile(call), Takeover::atOnce);
}

void desktopStatus(const Call& call) {
    const ProfileStore& store = call.store;
    call.out << "cartella normale: " << field(store.desktopLiveOwner())
             << (store.needsDesktopRestore() ? " (da ripristinare)" : "") << '\n';
    std::exception_ptr failure; // a damaged record must not hide the others
    for (const Profile& profile : store.loadAll()) {
        try {
            const bool hasData = store.hasDesktopData(profile);
            call.out << field(profile.id) << "\taccount=" << field(profile.accountOwner()) << "\tdati="
                     << (hasData ? field(store.desktopDataDir(profile).string())
                                 : "nessuno (login al primo avvio)")
                     << '\n';
        } catch (const LauncherError&) {
            failure = std::current_exception();
        }
    }
    for (const ClaudeApp::Instance& instance : store.claudeInstances()) {
        const std::string config =
            instance.isConfigKnown ? instance.config.value_or("~/.claude") : std::string(kUnknown);
        call.out << "aperto pid=" << instance.pid()
                 << "\tdati=" << field(instance.dataDir.empty() ? kUnknown : instance.dataDir)
                 << "\tconfig=" << field(config) << '\n';
    }
    if (failure)
        std::rethrow_exception(failure);
}

void restoreDesktop(const Call& call) {
    call.store.restoreDesktopData();
    call.out << "dati Desktop al loro posto\n";
}

void processes(const Call& call) {
    const ProfileStore& store = call.store;
    for (const ProcInfo& process : call.claude.allProcesses(store.dataFolders()))
        call.out << process.pid << '\t' << field(process.path) << '\n';
}

} // namespace selvane::CLI
