/* Prints the version of the library and the number of messages in a file.
 * SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <string.h>
#include <vexil64.h>

int main(int argc, char** argv) {
    uint32_t code = 0;
    if (argc != 2 || !VexilReadDbcFile(argv[1], (uint32_t)strlen(argv[1]) + 1, &code)) {
        fprintf(stderr, "cannot read the file: %u\n", code);
        return 1;
    }
    printf("vexil64 %.2f reads %u messages\n", VexilGetLibraryVersion(),
           (unsigned)VexilGetNumCanMessages());
    return 0;
}
