// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// UniformTypeIdentifiers: file types.

#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@interface UTType : NSObject <NSCopying>
@property(readonly) NSString* identifier;
@end

extern "C" UTType* const UTTypeZIP;

#pragma clang assume_nonnull end
