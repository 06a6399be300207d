/* Ends with the status 0 if the library answers, without a C runtime.
 * SPDX-License-Identifier: MIT */
#include <vexil64.h>

/* The compiler calls it before it uses floating-point numbers. */
int _fltused;

int start(void) {
    return VexilGetNumCanMessages() == 0 && VexilGetLibraryVersion() > 1.0F ? 0 : 1;
}
