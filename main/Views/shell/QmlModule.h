// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

/// Makes the QML module "Selvane" known, as generated. Because the views are linked statically, nothing else
/// would pull its registration into the program.
void qml_register_types_Selvane();
