// The end of a read: copying the reserved attributes of the file into the model.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil {

// Copies the reserved attributes from the table of the database into its info, messages and
// signals. Fields without an attribute in the file keep their values.
void FoldReservedAttributes();

}  // namespace vexil
