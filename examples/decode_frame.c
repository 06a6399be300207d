/* Decodes a frame and prints the physical value of each signal that is present.
 * docs/frame.md shows this program.
 * SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <vexil64_frame.h>

static CanSignalRecord signals[MaxSignalsPerMessage];

int main(int argc, char** argv) {
    CanMessageRecord message;
    uint8_t frame[64];
    size_t size = 0;
    uint32_t code;
    if (argc < 4 || argc - 3 > 64 ||
        !VexilReadDbcFile(argv[1], (uint32_t)strlen(argv[1]) + 1, &code)) {
        fprintf(stderr, "usage: decode_frame FILE ID BYTE...   with bytes in hexadecimal\n");
        return 1;
    }
    for (int i = 3; i < argc; ++i) {
        frame[size++] = (uint8_t)strtoul(argv[i], NULL, 16);
    }
    for (uint32_t m = 0; VexilGetCanMessageData(m, &message); ++m) {
        uint32_t count = 0;
        if (message.id != strtoul(argv[2], NULL, 0)) {
            continue;
        }
        while (VexilGetCanSignalData(m, count, &signals[count])) {
            ++count;
        }
        const CanSignalRecord* selector = VexilFindSelector(signals, count);
        for (uint32_t s = 0; s < count; ++s) {
            double value;
            VexilFrameResult result = VexilCheckPresence(&signals[s], selector, frame, size);
            if (result == FrameOk) {
                result = VexilDecodeValue(&signals[s], frame, size, &value);
            }
            if (result == FrameOk) {
                printf("%s = %.10g \"%s\"\n", signals[s].name, value, signals[s].unitUtf8);
            } else {
                printf("%s: %s\n", signals[s].name, VexilFrameResultText(result));
            }
        }
    }
    return 0;
}
