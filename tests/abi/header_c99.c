/* The public header as a host in strict C99 includes it: alone. Compiling this is the test.
 * SPDX-License-Identifier: MIT */
#include "vexil64.h"

/* A translation unit must hold something of its own. */
typedef DatabaseInfo HeaderDeclaresItsRecords;
