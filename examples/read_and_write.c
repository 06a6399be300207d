/* Reads a DBC file, prints its messages and signals, and writes it again. README.md shows this
 * program.
 * SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <string.h>
#include <vexil64.h>

int main(int argc, char** argv) {
    CanMessageRecord message;
    CanSignalRecord signal;
    ParseError error;
    uint32_t code;
    if (argc != 3 || !VexilReadDbcFile(argv[1], (uint32_t)strlen(argv[1]) + 1, &code)) {
        fprintf(stderr, "usage: read_and_write IN OUT, with an IN that can be read\n");
        return 1;
    }
    for (uint32_t m = 0; VexilGetCanMessageData(m, &message); ++m) {
        printf("%u %s from %s, every %d ms\n", message.id, message.longName, message.transmitter,
               message.cycleTime);
        for (uint32_t s = 0; VexilGetCanSignalData(m, s, &signal); ++s) {
            printf("    %-18s %2u bits, %.10g to %.10g \"%s\"\n", signal.name, signal.bitLength,
                   signal.minimum, signal.maximum, signal.unitUtf8);
        }
    }
    for (uint32_t e = 0; VexilGetErrorData(e, &error); ++e) {
        printf("line %u refused: %.*s\n", error.line, (int)strcspn(error.text, "\n"), error.text);
    }
    return !VexilWriteDbcFile(argv[2], (uint32_t)strlen(argv[2]) + 1, OrderByNameAscending, &code);
}
