/* Prints the size of each record and the offset and size of each of its fields, as the C compiler
 * lays them out. record_layout.txt is what every platform must print, and what bindings in other
 * languages have to agree with.
 * SPDX-License-Identifier: MIT */
#include <stdio.h>

#include "vexil64.h"

#define RECORD(type) printf("%s %u\n", #type, (unsigned)sizeof(type))
#define FIELD(type, field)                                                  \
    printf("%s.%s %u %u\n", #type, #field, (unsigned)offsetof(type, field), \
           (unsigned)sizeof(((type*)0)->field))

static void PrintMessage(void) {
    RECORD(CanMessageRecord);
    FIELD(CanMessageRecord, id);
    FIELD(CanMessageRecord, name);
    FIELD(CanMessageRecord, dlc);
    FIELD(CanMessageRecord, longName);
    FIELD(CanMessageRecord, transmitter);
    FIELD(CanMessageRecord, signalCount);
    FIELD(CanMessageRecord, comment);
    FIELD(CanMessageRecord, sendType);
    FIELD(CanMessageRecord, cycleTime);
}

static void PrintSignal(void) {
    RECORD(CanSignalRecord);
    FIELD(CanSignalRecord, name);
    FIELD(CanSignalRecord, longName);
    FIELD(CanSignalRecord, unit);
    FIELD(CanSignalRecord, receiverList);
    FIELD(CanSignalRecord, comment);
    FIELD(CanSignalRecord, multiplexType);
    FIELD(CanSignalRecord, multiplexValue);
    FIELD(CanSignalRecord, startBit);
    FIELD(CanSignalRecord, bitLength);
    FIELD(CanSignalRecord, byteOrder);
    FIELD(CanSignalRecord, valueType);
    FIELD(CanSignalRecord, factor);
    FIELD(CanSignalRecord, offset);
    FIELD(CanSignalRecord, minimum);
    FIELD(CanSignalRecord, maximum);
    FIELD(CanSignalRecord, enumCount);
    FIELD(CanSignalRecord, startValue);
    FIELD(CanSignalRecord, inactiveValue);
    FIELD(CanSignalRecord, unitUtf8);
}

int main(void) {
    RECORD(DatabaseInfo);
    FIELD(DatabaseInfo, protocolType);
    FIELD(DatabaseInfo, busType);
    PrintMessage();
    PrintSignal();
    RECORD(CanEnumRecord);
    FIELD(CanEnumRecord, value);
    FIELD(CanEnumRecord, text);
    RECORD(ParseError);
    FIELD(ParseError, code);
    FIELD(ParseError, line);
    FIELD(ParseError, text);
    return 0;
}
