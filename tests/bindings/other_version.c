/* A library with the names of vexil64 and another version, which bindings must refuse.
 * SPDX-License-Identifier: MIT */
float VexilGetLibraryVersion(void);

float VexilGetLibraryVersion(void) {
    return 1.32F;
}
