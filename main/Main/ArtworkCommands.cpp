// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Main/Arguments.h"
#include "Main/Commands.h"

namespace selvane::CLI {
namespace {

const std::string& folderArgument(const Call& call) {
    if (call.arguments.size() != 2)
        requireArguments(call, call.arguments.size() + 1);
    return call.arguments[1];
}

} // namespace

void renderIcon(const Call& call) {
    call.windows.renderIcon(folderArgument(call));
}
void renderDMGBackground(const Call& call) {
    call.windows.renderDMGBackground(folderArgument(call));
}

} // namespace selvane::CLI
