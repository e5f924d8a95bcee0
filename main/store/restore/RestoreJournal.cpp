// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/RestoreJournal.h"

#include "model/ByteText.h"
#include "platform/files/FileManager.h"
#include "platform/json/Json.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

std::string textAt(const Json& object, std::string_view key) {
    const Json* const value = json::find(object, key);
    return value != nullptr && value->is_string() ? bytesFromText(value->get<std::string>()) : std::string();
}

const Json& listAt(const Json& object, std::string_view key) {
    static const Json kNone = Json::array();
    const Json* const value = json::find(object, key);
    return value != nullptr && value->is_array() ? *value : kNone;
}

/// Only what a restore could have written: a temporary beside its target.
std::optional<TreeSwap> swapFrom(const Json& object) {
    TreeSwap swap;
    swap.target = textAt(object, "target");
    swap.temporary = textAt(object, "temporary");
    swap.kept = textAt(object, "kept");
    const Json* const inode = json::find(object, "inode");
    if (inode != nullptr && inode->is_string())
        swap.inode = static_cast<ino_t>(std::strtoull(inode->get<std::string>().c_str(), nullptr, 10));
    const fs::path folder = swap.target.parent_path();
    const bool isBeside = swap.target.is_absolute() && folder == swap.temporary.parent_path() &&
                          (swap.kept.empty() || folder == swap.kept.parent_path());
    if (!isBeside || !swap.temporary.filename().native().starts_with(FileManager::kTemporaryPrefix))
        return std::nullopt;
    return swap;
}

} // namespace

fs::path RestoreJournal::fileIn(const fs::path& root) {
    return root / (std::string(FileManager::kTemporaryPrefix) + "restore.json");
}

std::optional<RestoreJournal> RestoreJournal::read(const fs::path& root) {
    const fs::path file = fileIn(root);
    const auto text = FileManager().readIfPossible(file);
    if (!text)
        return std::nullopt;
    RestoreJournal journal;
    try {
        const Json object = json::parse(*text, file);
        journal.archive = textAt(object, "archive");
        const Json* const isComplete = json::find(object, "complete");
        journal.isComplete = isComplete != nullptr && *isComplete == Json(true);
        for (const Json& each : listAt(object, "parts")) {
            Part part{textAt(each, "title"), {}};
            for (const Json& tree : listAt(each, "trees")) {
                if (const auto swap = swapFrom(tree))
                    part.swaps.push_back(*swap);
            }
            journal.parts.push_back(std::move(part));
        }
    } catch (const JsonError&) {
        return std::nullopt;
    }
    return journal;
}

void RestoreJournal::write(const fs::path& root) const {
    Json object = Json::object();
    json::set(object, "archive", textFromBytes(archive.native()));
    json::set(object, "complete", isComplete);
    Json list = Json::array();
    for (const Part& part : parts) {
        Json trees = Json::array();
        for (const TreeSwap& swap : part.swaps) {
            Json tree = Json::object();
            json::set(tree, "target", textFromBytes(swap.target.native()));
            json::set(tree, "temporary", textFromBytes(swap.temporary.native()));
            json::set(tree, "kept", textFromBytes(swap.kept.native()));
            json::set(tree, "inode", std::to_string(swap.inode));
            trees.push_back(std::move(tree));
        }
        Json each = Json::object();
        json::set(each, "title", textFromBytes(part.title));
        json::set(each, "trees", std::move(trees));
        list.push_back(std::move(each));
    }
    json::set(object, "parts", std::move(list));
    FileManager().write(fileIn(root), json::serialized(object), Privacy::ownerOnly);
}

void RestoreJournal::remove(const fs::path& root) {
    const FileManager files;
    if (files.exists(fileIn(root)))
        files.removeFile(fileIn(root));
    files.waitForNames(root);
}

} // namespace selvane
