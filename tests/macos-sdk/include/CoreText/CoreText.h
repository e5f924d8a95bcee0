// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// CoreText: the available fonts.

#pragma once

#include <CoreGraphics/CoreGraphics.h>

#pragma clang assume_nonnull begin

extern "C" CFArrayRef CTFontManagerCopyAvailableFontFamilyNames(void);

#pragma clang assume_nonnull end
