// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

/// Registers the QML module "Selvane"; generated. The views are linked statically, so nothing else would pull
/// the registration into the program.
void qml_register_types_Selvane();
