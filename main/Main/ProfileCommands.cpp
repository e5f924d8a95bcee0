// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <ostream>

#include "Main/Arguments.h"
#include "Main/Commands.h"
#include "model/LauncherError.h"
#include "platform/files/Progress.h"
#include "platform/process/Interruption.h"

namespace selvane::CLI {
namespace {

std::string modesOf(const Profile& profile) {
    std::string text;
    for (const Component component : kComponents) {
        text += text.empty() ? "" : " ";
        text += rawValue(component);
        text += '=';
        text += rawValue(profile.mode(component));
    }
    return text;
}

void setAllowedMode(const std::string& text, std::map<Component, ShareMode>& modes) {
    const auto [component, mode] = assignment(text);
    if (!allows(component, mode))
        throw LauncherError("Modalità non valida: " + field(text));
    modes[component] = mode;
}

bool isYes(const std::string& option, const std::string& value) {
    if (value != "yes" && value != "no")
        throw LauncherError("Opzione non valida: " + option + " " + field(value));
    return value == "yes";
}

NewProfile newProfile(const Call& call) {
    NewProfile request;
    request.name = call.arguments[1];
    for (std::size_t i = 2; i < call.arguments.size(); i += 2) {
        const std::string& option = call.arguments[i];
        if (option != "--from" && option != "--account" && option != "--mode" && option != "--isolated")
            throw LauncherError("Opzione sconosciuta: " + field(option));
        requireArguments(call, i + 2);
        const std::string& value = call.arguments[i + 1];
        if (option == "--from")
            request.from = profile(value, call.store);
        else if (option == "--account")
            request.account = value;
        else if (option == "--isolated")
            request.isolated = isYes(option, value);
        else
            setAllowedMode(value, request.modes);
    }
    return request;
}

} // namespace

void list(const Call& call) {
    for (const Profile& profile : call.store.loadAll()) {
        call.out << field(profile.id) << '\t' << field(profile.meta.name) << '\t'
                 << field(profile.configDir.string())
                 << "\tsource=" << field(profile.meta.source.value_or("-")) << '\t'
                 << (profile.isDefault() ? "" : modesOf(profile)) << '\n';
    }
}

void create(const Call& call) {
    requireArguments(call, 2);
    const NewProfile request = newProfile(call);
    Progress own;
    Progress& progress = call.store.progress() != nullptr ? *call.store.progress() : own;
    Interruption interruption(progress);
    try {
        call.out << ProfileStore(call.store, progress).create(request).id << '\n';
    } catch (...) { // an interrupted profile is removed by now
        interruption.endIfRequested();
        throw;
    }
}

void path(const Call& call) {
    call.out << profile(call).configDir.string() << '\n';
}

void sync(const Call& call) {
    const SyncReport report = call.store.sync(profile(call));
    for (const std::string& name : report.added)
        call.out << "+ " << field(name) << '\n';
    for (const std::string& name : report.removed)
        call.out << "- " << field(name) << '\n';
}

void items(const Call& call) {
    const Profile owner = profile(call);
    for (const Component component : kComponents) {
        if (!isCollection(component))
            continue;
        for (const ComponentItem& item : call.store.items(component, owner)) {
            call.out << rawValue(component) << '\t' << field(item.name) << '\t';
            if (item.isLinked())
                call.out << "link -> " << field(*item.linkTarget) << (item.isBroken ? " (interrotto)" : "");
            else
                call.out << "own";
            call.out << '\n';
        }
    }
}

void setMode(const Call& call) {
    if (call.arguments.size() != 3)
        requireArguments(call, call.arguments.size() + 1);
    const Profile changed = profile(call);
    const auto [component, mode] = assignment(call.arguments[2]);
    call.store.setMode(mode, component, changed);
}

void installHelper(const Call& call) {
    call.out << call.store.installTerminalHelper().string() << '\n';
}

} // namespace selvane::CLI
