// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// OpenGL: for Qt's own headers.

#pragma once

#include <GL/glext.h>
