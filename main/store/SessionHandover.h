// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace selvane {

/// Whether a file among the session records of an account is one, by its name.
bool isSessionRecord(std::string_view name);

/// The folder in a profile's configuration folder for records that wait for its next launch.
constexpr std::string_view kSessionQueue = ".pending-sessions";
/// The hidden file beside a queued record that says to which organisation folder it goes, as a path from the
/// data folder. Without one, it goes to the folder used last.
std::string placeNoteFor(std::string_view record);
bool isPlaceNote(std::string_view name);

/// A session record prepared for another account: without the connections and tools of the account it leaves.
/// If the record isn't JSON, throws a `JsonError` that names `file`.
std::string withoutAccount(const std::string& record, const std::filesystem::path& file);
/// The same, and it is no longer archived.
std::string continuedRecord(const std::string& record, const std::filesystem::path& file);

} // namespace selvane
