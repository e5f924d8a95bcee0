// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#import <Foundation/Foundation.h>

#include <filesystem>
#include <string>
#include <vector>

/// From this program's types to those of the system and back.
namespace selvane::macos {

inline NSString* textOf(const std::string& bytes) {
    NSString* text = [[NSString alloc] initWithBytes:bytes.data()
                                              length:bytes.size()
                                            encoding:NSUTF8StringEncoding];
    if (text != nil)
        return text;
    // No UTF-8: every byte stands for a character.
    return [[NSString alloc] initWithBytes:bytes.data()
                                    length:bytes.size()
                                  encoding:NSISOLatin1StringEncoding];
}

inline std::string textOf(NSString* text) {
    const char* bytes = text.UTF8String;
    return bytes == nullptr ? std::string() : std::string(bytes);
}

/// `isFolder`: of the thing itself. A link to a folder is none, or the system would go through it.
inline NSURL* urlOf(const std::filesystem::path& path, bool isFolder) {
    return [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:isFolder relativeToURL:nil];
}

inline std::filesystem::path pathOf(NSURL* url) {
    return url.fileSystemRepresentation;
}

/// Why something failed, in the words that this program has for it, else in those of the system.
std::string reasonOf(NSError* error);

} // namespace selvane::macos
