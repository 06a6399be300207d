// The end of a read: what the reserved attributes of the file say goes into the model.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil {

// Carries the reserved attributes from the database's table into its info, messages and signals.
// What the file does not say keeps the value it has.
void FoldReservedAttributes();

}  // namespace vexil
