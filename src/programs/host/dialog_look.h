// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QDialog;

namespace melvado {

/// Gives a dialog the program's colours and type. `factor` is the number of pixels of a unit.
void DressDialog(QDialog& dialog, double factor);

}  // namespace melvado
