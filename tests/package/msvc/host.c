/* Exits with status 0 if a call of the library works. Has no C runtime.
 * SPDX-License-Identifier: MIT */
#include <vexil64.h>

/* The compiler refers to this symbol in programs with floating-point numbers. */
int _fltused;

int start(void) {
    return VexilGetNumCanMessages() == 0 && VexilGetLibraryVersion() > 1.0F ? 0 : 1;
}
