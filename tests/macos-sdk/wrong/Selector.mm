// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// One letter of a selector is wrong.

#import <AppKit/AppKit.h>

void reveal(NSURL* url) {
    [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLS:@[ url ]];
}
