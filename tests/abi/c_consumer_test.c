/* A C99 program that calls all seventeen functions of the built library through its header only.
 *   c_consumer_test FOLDER    writes its files into FOLDER
 * SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "vexil64.h"

static int failures = 0;

static void Check(int holds, const char* what) {
    if (!holds) {
        fprintf(stderr, "FAILED: %s\n", what);
        ++failures;
    }
}

static void CheckText(const char* actual, const char* expected, const char* what) {
    if (strcmp(actual, expected) != 0) {
        fprintf(stderr, "FAILED: %s is \"%s\" and not \"%s\"\n", what, actual, expected);
        ++failures;
    }
}

/* The size of the buffer of a path: the NUL counts. */
static uint32_t PathBufferSize(const char* path) {
    return (uint32_t)strlen(path) + 1;
}

static void TestEmptyDatabase(void) {
    CanMessageRecord message;
    uint32_t count = 77;
    memset(&message, 0x55, sizeof message);
    Check(VexilGetLibraryVersion() == 1.33F, "the version is 1.33");
    Check(VexilGetNumCanMessages() == 0, "a loaded library has no message");
    Check(VexilGetNumCanErrors() == 0, "a loaded library has no parse error");
    Check(VexilGetCanMessageData(0, &message) == 0, "there is no first message");
    Check(message.id == 0x55555555U, "a failed fetch leaves the record unchanged");
    Check(VexilGetNumCanSignalsInCanMessage(0, &count) == 0, "there are no signals to count");
    Check(count == 77, "a failed count leaves the variable unchanged");
}

static void TestDatabaseInfo(void) {
    const DatabaseInfo stored = {ProtocolJ1939, BusCanFd};
    DatabaseInfo fetched = {99, 99};
    VexilSetDatabaseInfo(&stored, sizeof stored);
    VexilGetDatabaseInfo(&fetched, sizeof fetched);
    Check(fetched.protocolType == ProtocolJ1939, "the protocol type is stored");
    Check(fetched.busType == BusCanFd, "the bus type is stored");
}

static void Append(void) {
    const CanEnumRecord neutral = {0, "Neutral"};
    const CanEnumRecord reverse = {-1, "Reverse"};
    CanMessageRecord message = {0};
    CanSignalRecord signal = {0};
    message.id = 291;
    message.dlc = 8;
    strcpy(message.longName, "Engine");
    strcpy(message.transmitter, "ECU1");
    strcpy(message.comment, "Main \"data\"");
    Check(VexilAppendCanMessage(&message) == 1, "a message is appended");
    Check(VexilAppendCanMessage(NULL) == 0, "a null message is refused");
    strcpy(signal.longName, "Gear");
    strcpy(signal.unit, "km/h");
    strcpy(signal.receiverList, "ABS, ECU1");
    signal.multiplexType = MultiplexSelector;
    signal.startBit = 16;
    signal.bitLength = 4;
    signal.byteOrder = ByteOrderLittleEndian;
    signal.valueType = ValueSigned;
    signal.factor = 0.5;
    signal.minimum = -1;
    signal.maximum = 6;
    Check(VexilAppendCanSignalToCanMessage(0, &signal) == 1, "a signal is appended");
    Check(VexilAppendCanSignalToCanMessage(1, &signal) == 0, "the message index is out of range");
    Check(VexilAppendEnumToCanSignal(0, 0, &neutral) == 1, "a description is appended");
    Check(VexilAppendEnumToCanSignal(0, 0, &reverse) == 1, "a lower value is appended");
    Check(VexilAppendEnumToCanSignal(0, 1, &reverse) == 0, "the signal index is out of range");
}

/* The records that Append stored, as appended and as read. */
static void CheckDatabase(void) {
    CanMessageRecord message;
    CanSignalRecord signal;
    CanEnumRecord description;
    uint32_t count = 0;
    Check(VexilGetNumCanMessages() == 1, "there is one message");
    Check(VexilGetCanMessageData(0, &message) == 1, "the message is fetched");
    Check(message.id == 291 && message.dlc == 8, "id and size of the message");
    CheckText(message.longName, "Engine", "the long name of the message");
    CheckText(message.transmitter, "ECU1", "the transmitter");
    CheckText(message.comment, "Main \\\"data\\\"", "the comment of the message");
    Check(message.signalCount == 1, "the message counts its signals");
    Check(VexilGetNumCanSignalsInCanMessage(0, &count) == 1 && count == 1, "there is one signal");
    Check(VexilGetCanSignalData(0, 0, &signal) == 1, "the signal is fetched");
    CheckText(signal.name, "Gear", "the name of the signal");
    CheckText(signal.unitUtf8, "km/h", "the unit");
    CheckText(signal.receiverList, "ABS,ECU1", "the receivers");
    Check(signal.multiplexType == MultiplexSelector, "the signal is the multiplex selector");
    Check(signal.valueType == ValueSigned && signal.factor == 0.5, "value type and factor");
    Check(signal.enumCount == 2, "the signal counts its descriptions");
    Check(VexilGetNumEnumsInCanSignal(0, 0, &count) == 1 && count == 2, "two descriptions");
    Check(VexilGetCanSignalEnumData(0, 0, 0, &description) == 1, "a description is fetched");
    Check(description.value == -1, "the lowest value comes first");
    CheckText(description.text, "Reverse", "the text of a description");
}

static void TestWriteAndRead(const char* path) {
    DatabaseInfo info = {99, 99};
    uint32_t resultCode = 99;
    Check(VexilWriteDbcFile(path, PathBufferSize(path), OrderAsStored, &resultCode) == 1,
          "the database is written");
    Check(resultCode == StateClosed, "a written file is closed");
    VexilClearData();
    Check(VexilGetNumCanMessages() == 0, "a cleared database has no message");
    resultCode = 99;
    Check(VexilReadDbcFile(path, PathBufferSize(path), &resultCode) == 1, "the file is read");
    Check(resultCode == StateClosed, "a file that was read is closed");
    Check(VexilGetNumCanErrors() == 0, "no statement of a written file is refused");
    VexilGetDatabaseInfo(&info, sizeof info);
    Check(info.protocolType == ProtocolJ1939 && info.busType == BusCanFd, "protocol and bus");
}

static void TestParseErrors(const char* path) {
    ParseError error;
    uint32_t resultCode = 99;
    FILE* file = fopen(path, "w");
    if (file == NULL) {
        Check(0, "the file with errors is created");
        return;
    }
    fputs("BO_ 291 Engine: 8 ECU1\n SG_ Speed 0|16@1+ (1,0)\nBU_ : ECU1\n", file);
    fclose(file);
    Check(VexilReadDbcFile(path, PathBufferSize(path), &resultCode) == 1, "the file is read");
    Check(VexilGetNumCanErrors() == 1, "one statement was refused");
    Check(VexilGetErrorData(0, &error) == 1, "the error is fetched");
    Check(error.code == StepSignalName && error.line == 2, "step and line of the signal");
    CheckText(error.text, "SG_ Speed 0|16@1+ (1,0)", "the refused signal");
    Check(VexilGetErrorData(1, &error) == 0, "there is no second error");
}

int main(int argc, char** argv) {
    char written[1024];
    char damaged[1024];
    if (argc != 2) {
        fprintf(stderr, "usage: c_consumer_test FOLDER\n");
        return EXIT_FAILURE;
    }
    snprintf(written, sizeof written, "%s/written.dbc", argv[1]);
    snprintf(damaged, sizeof damaged, "%s/damaged.dbc", argv[1]);
    TestEmptyDatabase();
    TestDatabaseInfo();
    Append();
    CheckDatabase();
    TestWriteAndRead(written);
    CheckDatabase();
    TestParseErrors(damaged);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
