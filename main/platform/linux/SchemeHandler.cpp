// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/SchemeHandler.h"

#include "model/LauncherError.h"
#include "platform/linux/DesktopServices.h"
#include "platform/services/Received.h"
#include "platform/text/Text.h"

namespace selvane {

std::string schemeHandler(const std::string& scheme) {
    Received<std::string> id;
    desktopServices().schemeHandler(scheme.c_str(), appendBytes, &id);
    return id.take();
}

void setSchemeHandler(const std::string& scheme, const std::string& entry) {
    Received<std::string> message;
    const bool isSet =
        desktopServices().setSchemeHandler(scheme.c_str(), entry.c_str(), appendBytes, &message);
    const std::string reason = text::singleLine(message.take());
    if (!isSet)
        throw LauncherError("I collegamenti \"" + scheme + ":\" non possono essere affidati a " +
                            text::singleLine(entry) + (reason.empty() ? "" : " (" + reason + ")"));
}

void resetSchemeHandler(const std::string& scheme) {
    desktopServices().resetSchemeHandler(scheme.c_str());
}

} // namespace selvane
