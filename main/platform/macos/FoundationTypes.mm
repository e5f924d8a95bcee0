// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#import "platform/macos/FoundationTypes.h"

#include <system_error>

#include "platform/text/ErrorText.h"

namespace selvane::macos {

std::string reasonOf(NSError* error) {
    for (NSError* cause = error; cause != nil; cause = cause.userInfo[NSUnderlyingErrorKey]) {
        if ([cause.domain isEqualToString:NSPOSIXErrorDomain])
            return describe(std::error_code(static_cast<int>(cause.code), std::generic_category()));
    }
    return textOf(error.localizedDescription);
}

} // namespace selvane::macos
