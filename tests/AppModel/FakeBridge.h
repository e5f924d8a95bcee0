// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "AppModel/DesktopBridge.h"

namespace selvane::test {

/// Records what the windows ask of the desktop.
struct FakeBridge final : DesktopBridge {
    int ends = 0;
    QString clipboard;
    bool keepsClipboard = true;
    std::vector<std::filesystem::path> revealed;
    std::vector<std::filesystem::path> opened;
    bool hasPrograms = true;                     ///< that show and open files
    bool hasComparison = false;                  ///< a program that compares files
    std::vector<std::filesystem::path> compared; ///< two at a time
    QString proposedName;
    std::optional<std::filesystem::path> archive; ///< the answer of the save dialog
    bool answersLater = false;                    ///< when `answer` is called
    std::function<void(std::optional<std::filesystem::path>)> answer;

    bool canReceive = false; ///< sign-ins
    bool receives = false;

    std::filesystem::path selvane = "/bin/true"; ///< the program
    mutable std::atomic<int> drawings = 0;

    std::filesystem::path program() const override { return selvane; }
    std::vector<IconImage> drawIcon(const ProfileLook& look) const override {
        ++drawings;
        return {{{48, 1}, look.symbol + std::string(kIconMark)}};
    }
    bool canReceiveSignIns() const override { return canReceive; }
    bool receivesSignIns() const override { return receives; }
    void setReceivesSignIns(bool value) override { receives = value; }
    void endApplication() override { ++ends; }
    bool copyToClipboard(const QString& text) override {
        clipboard = text;
        return keepsClipboard;
    }
    Environment startVariables() override { return {{"XDG_ACTIVATION_TOKEN", "fresh"}}; }
    void reveal(const std::filesystem::path& item, std::function<void()> failed) override {
        reach(revealed, item, failed);
    }
    void open(const std::filesystem::path& file, std::function<void()> failed) override {
        reach(opened, file, failed);
    }
    bool compare(const std::filesystem::path& first, const std::filesystem::path& second) override {
        if (hasComparison)
            compared.insert(compared.end(), {first, second});
        return hasComparison;
    }
    void reach(std::vector<std::filesystem::path>& reached, const std::filesystem::path& item,
               const std::function<void()>& failed) const {
        if (hasPrograms)
            reached.push_back(item);
        else
            failed();
    }
    void askForArchive(const QString& name,
                       std::function<void(std::optional<std::filesystem::path>)> done) override {
        proposedName = name;
        answer = std::move(done);
        if (!answersLater)
            answer(archive);
    }
    void askForBackup(std::function<void(std::optional<std::filesystem::path>)> done) override {
        done(archive);
    }
};

} // namespace selvane::test
