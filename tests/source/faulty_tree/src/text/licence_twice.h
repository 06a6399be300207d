// Two licences where there is one.
// SPDX-License-Identifier: MIT
// SPDX-License-Identifier: MIT
