// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/SystemSymbol.h"

#import <AppKit/AppKit.h>

#include <algorithm>

namespace selvane {
namespace {

/// The size of a symbol relative to its square, as for the icons in the table.
constexpr CGFloat kShare = 0.72;

NSFontWeight fontWeight(IconWeight weight) {
    switch (weight) {
    case IconWeight::light:
        return NSFontWeightLight;
    case IconWeight::bold:
        return NSFontWeightBold;
    case IconWeight::regular:
    case IconWeight::fill:
        break;
    }
    return NSFontWeightRegular;
}

NSImage* symbolImage(const QString& name, IconWeight weight, int pixels) {
    NSImage* image = nil;
    if (weight == IconWeight::fill)
        image = [NSImage imageWithSystemSymbolName:(name + ".fill").toNSString()
                          accessibilityDescription:nil];
    if (image == nil)
        image = [NSImage imageWithSystemSymbolName:name.toNSString() accessibilityDescription:nil];
    NSImageSymbolConfiguration* configuration =
        [NSImageSymbolConfiguration configurationWithPointSize:pixels * kShare
                                                        weight:fontWeight(weight)
                                                         scale:NSImageSymbolScaleMedium];
    return [image imageWithSymbolConfiguration:configuration];
}

/// Centred, and no larger than the square.
NSRect placeOf(NSSize size, CGFloat side) {
    const CGFloat scale = std::min({CGFloat(1), side / size.width, side / size.height});
    const CGFloat width = size.width * scale;
    const CGFloat height = size.height * scale;
    return NSMakeRect((side - width) / 2, (side - height) / 2, width, height);
}

void draw(NSImage* image, QImage& target) {
    const CGColorSpaceRef colours = CGColorSpaceCreateDeviceRGB();
    const CGContextRef context = CGBitmapContextCreate(
        target.bits(), static_cast<std::size_t>(target.width()), static_cast<std::size_t>(target.height()), 8,
        static_cast<std::size_t>(target.bytesPerLine()), colours,
        static_cast<CGBitmapInfo>(kCGImageAlphaPremultipliedFirst) | kCGBitmapByteOrder32Host);
    CGColorSpaceRelease(colours);
    if (context == nullptr)
        return;
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context flipped:NO];
    [image drawInRect:placeOf(image.size, target.width())];
    [NSGraphicsContext restoreGraphicsState];
    CGContextRelease(context);
}

} // namespace

QImage systemSymbol(const QString& name, IconWeight weight, int pixels) {
    @autoreleasepool {
        NSImage* image = symbolImage(name, weight, pixels);
        if (image == nil)
            return {};
        QImage result(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        result.fill(Qt::transparent);
        draw(image, result);
        return result;
    }
}

} // namespace selvane
