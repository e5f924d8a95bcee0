// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Conversation.h"

namespace selvane {

class ProfileStore;

/// Every conversation of every profile and account: those in the Code tab of each account and organisation,
/// archived ones as well, and those begun in a terminal, whose transcripts belong to no record. A
/// conversation that lies in several profiles is listed once.
///
/// Reads records whole and transcripts at both ends, on several threads; what can't be read is left out. May
/// be called on any thread. Throws only if the store's progress is cancelled.
ConversationList conversations(const ProfileStore& store);

} // namespace selvane
