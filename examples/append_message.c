/* Adds a message with one signal to a network and writes a new file. README.md shows this program.
 * SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <string.h>
#include <vexil64.h>

int main(int argc, char** argv) {
    CanMessageRecord message = {0};
    CanSignalRecord signal = {0};
    CanEnumRecord closed = {0, "closed"};
    uint32_t last;
    uint32_t code;
    if (argc != 3 || !VexilReadDbcFile(argv[1], (uint32_t)strlen(argv[1]) + 1, &code)) {
        fprintf(stderr, "usage: append_message IN OUT, with an IN that can be read\n");
        return 1;
    }
    message.id = 803;
    message.dlc = 1;
    strcpy(message.longName, "HatchStatus");
    strcpy(message.transmitter, "Roof");
    strcpy(signal.longName, "HatchPosition");
    strcpy(signal.unit, "%");
    strcpy(signal.receiverList, "Door,Dash");
    signal.bitLength = 8;
    signal.byteOrder = ByteOrderLittleEndian;
    signal.factor = 0.5;
    signal.maximum = 100;
    last = (uint32_t)VexilGetNumCanMessages(); /* the index of the message that is added next */
    if (!VexilAppendCanMessage(&message) || !VexilAppendCanSignalToCanMessage(last, &signal) ||
        !VexilAppendEnumToCanSignal(last, 0, &closed)) {
        fprintf(stderr, "a text of the message, the signal or the description is not UTF-8\n");
        return 1;
    }
    return !VexilWriteDbcFile(argv[2], (uint32_t)strlen(argv[2]) + 1, OrderAsStored, &code);
}
