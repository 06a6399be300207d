/* A library with the file name of vexil64 but another version, which the bindings must refuse.
 * SPDX-License-Identifier: MIT */
float VexilGetLibraryVersion(void);

float VexilGetLibraryVersion(void) {
    return 1.32F;
}
