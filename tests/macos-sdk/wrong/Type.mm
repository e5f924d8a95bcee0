// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// A path isn't a URL.

#import <AppKit/AppKit.h>

void reveal(NSString* path) {
    NSURL* url = path;
    [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ url ]];
}
