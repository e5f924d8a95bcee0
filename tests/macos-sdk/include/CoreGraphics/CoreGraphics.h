// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// CoreGraphics: the window server's session, and drawing into memory.

#pragma once

#include <stddef.h>
#include <stdint.h>

#pragma clang assume_nonnull begin

typedef double CGFloat;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
typedef struct CGPoint CGPoint;
struct CGSize {
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;
struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef struct CGRect CGRect;

typedef const void* CFTypeRef;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef const struct __CFArray* CFArrayRef;
typedef struct CGContext* CGContextRef;
typedef struct CGColorSpace* CGColorSpaceRef;

typedef uint32_t CGBitmapInfo;
enum : uint32_t { kCGImageAlphaPremultipliedFirst = 2, kCGImageAlphaOnly = 7 };
enum : uint32_t {
    kCGBitmapByteOrder32Little = 2u << 12,
    kCGBitmapByteOrder32Host = kCGBitmapByteOrder32Little
};

extern "C" {
void CFRelease(CFTypeRef object);
CFDictionaryRef _Nullable CGSessionCopyCurrentDictionary(void);
CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, size_t width, size_t height,
                                             size_t bitsPerComponent, size_t bytesPerRow,
                                             CGColorSpaceRef _Nullable space, uint32_t bitmapInfo);
void CGContextRelease(CGContextRef _Nullable context);
CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void);
void CGColorSpaceRelease(CGColorSpaceRef _Nullable space);
}

#pragma clang assume_nonnull end
