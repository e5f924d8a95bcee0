// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#import <Foundation/Foundation.h>

#include <filesystem>
#include <string>
#include <vector>

/// Conversions between Selvane's types and the system's.
namespace selvane::macos {

inline NSString* textOf(const std::string& bytes) {
    NSString* text = [[NSString alloc] initWithBytes:bytes.data()
                                              length:bytes.size()
                                            encoding:NSUTF8StringEncoding];
    if (text != nil)
        return text;
    // Not UTF-8: each byte becomes a character.
    return [[NSString alloc] initWithBytes:bytes.data()
                                    length:bytes.size()
                                  encoding:NSISOLatin1StringEncoding];
}

inline std::string textOf(NSString* text) {
    const char* bytes = text.UTF8String;
    return bytes == nullptr ? std::string() : std::string(bytes);
}

/// `isFolder` refers to `path` itself. It is false for a link to a folder, or the system would follow the
/// link.
inline NSURL* urlOf(const std::filesystem::path& path, bool isFolder) {
    return [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:isFolder relativeToURL:nil];
}

inline std::filesystem::path pathOf(NSURL* url) {
    return url.fileSystemRepresentation;
}

/// The reason for an error, in Selvane's own words if it has any, otherwise in the system's.
std::string reasonOf(NSError* error);

} // namespace selvane::macos
