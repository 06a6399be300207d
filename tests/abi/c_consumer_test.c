/* A host in C99: calls all seventeen functions of the built library through its header alone.
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

/* The size of the buffer at a path, as the library takes it: the NUL counts. */
static uint32_t PathBufferSize(const char* path) {
    return (uint32_t)strlen(path) + 1;
}

/* Puts the whole of a text file into a buffer, which stays empty if that fails. */
static void ReadWholeFile(const char* path, char* buffer, size_t size) {
    FILE* file = fopen(path, "r");
    buffer[0] = '\0';
    if (file != NULL) {
        buffer[fread(buffer, 1, size - 1, file)] = '\0';
        fclose(file);
    }
}

/* The whole file minus its symbol block, which does not depend on the database. */
static const char* const preambleFront = "VERSION \"\"\n\nNS_ :\n    NS_DESC_\n";
static const char* const writtenBody =
    "BS_ :\n"
    "\n"
    "BU_ :  ECU1 ABS\n"
    "\n"
    "BO_ 291 Engine_data: 8 ECU1\n"
    " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n"
    " SG_ Gear M : 16|4@1- (1,0) [-1|6] \"\" ABS,ECU1\n"
    "\n"
    "CM_ BO_ 291 \"Main \\\"data\\\"\";\n"
    "CM_ SG_ 291 Speed \"Vehicle speed\";\n"
    "BA_DEF_ \"BusType\" STRING ;\n"
    "BA_DEF_ \"J1939PGN\" INT 0 1;\n"
    "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
    "BA_DEF_DEF_ \"BusType\" \"CAN FD\";\n"
    "BA_DEF_DEF_ \"J1939PGN\" 1;\n"
    "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";\n"
    "BA_ \"Marrowby_Msg_Name\" BO_ 291 \"Engine data\";\n"
    "VAL_ 291 Gear -1 \"Reverse\" 0 \"Neutral - Idle\";\n";

static void TestEmptyDatabase(void) {
    CanMessageRecord message;
    CanSignalRecord signal;
    CanEnumRecord description;
    ParseError error;
    uint32_t count = 77;
    memset(&message, 0x55, sizeof message);
    Check(VexilGetLibraryVersion() == 1.33F, "the version is 1.33");
    Check(VexilGetNumCanMessages() == 0, "a loaded library holds no message");
    Check(VexilGetNumCanErrors() == 0, "a loaded library holds no parse error");
    Check(VexilGetCanMessageData(0, &message) == 0, "there is no first message");
    Check(message.id == 0x55555555U, "a failed get leaves the record untouched");
    Check(VexilGetCanSignalData(0, 0, &signal) == 0, "there is no first signal");
    Check(VexilGetNumCanSignalsInCanMessage(0, &count) == 0, "there are no signals to count");
    Check(VexilGetNumEnumsInCanSignal(0, 0, &count) == 0, "there are no descriptions to count");
    Check(count == 77, "a failed count leaves the variable untouched");
    Check(VexilGetCanSignalEnumData(0, 0, 0, &description) == 0, "there is no description");
    Check(VexilGetErrorData(0, &error) == 0, "there is no first parse error");
}

static void TestDatabaseInfo(void) {
    const DatabaseInfo stored = {ProtocolJ1939, BusCanFd};
    DatabaseInfo fetched = {99, 99};
    VexilSetDatabaseInfo(&stored, sizeof stored);
    VexilGetDatabaseInfo(&fetched, 4);
    Check(fetched.protocolType == ProtocolJ1939, "four bytes hold the protocol type");
    Check(fetched.busType == 99, "four bytes do not reach the bus type");
    VexilGetDatabaseInfo(&fetched, 100);
    Check(fetched.busType == BusCanFd, "at most eight bytes are copied");
}

static void AppendMessage(void) {
    CanMessageRecord message = {0};
    message.id = 291;
    message.dlc = 8;
    strcpy(message.name, "ignored");
    strcpy(message.longName, "Engine data");
    strcpy(message.transmitter, "ECU1");
    strcpy(message.comment, "Main \"data\"");
    Check(VexilAppendCanMessage(&message) == 1, "a message is appended");
    Check(VexilAppendCanMessage(NULL) == 0, "a null message is refused");
    strcpy(message.longName, "not \xff UTF-8");
    Check(VexilAppendCanMessage(&message) == 0, "a text that is not UTF-8 is refused");
    Check(VexilGetNumCanMessages() == 1, "a refused message is not stored");
}

static void AppendSignals(void) {
    CanSignalRecord signal = {0};
    strcpy(signal.longName, "Speed");
    strcpy(signal.unit, "km/h");
    strcpy(signal.receiverList, "ABS");
    strcpy(signal.comment, "Vehicle speed");
    signal.bitLength = 16;
    signal.byteOrder = ByteOrderLittleEndian;
    signal.factor = 0.1;
    signal.maximum = 6553.5;
    Check(VexilAppendCanSignalToCanMessage(0, &signal) == 1, "a signal is appended");
    Check(VexilAppendCanSignalToCanMessage(1, &signal) == 0, "a message that is not there");
    memset(&signal, 0, sizeof signal);
    strcpy(signal.longName, "Gear");
    strcpy(signal.receiverList, "ABS, ECU1");
    signal.multiplexType = MultiplexSelector;
    signal.startBit = 16;
    signal.bitLength = 4;
    signal.byteOrder = ByteOrderLittleEndian;
    signal.valueType = ValueFloat32;
    signal.factor = 1;
    signal.minimum = -1;
    signal.maximum = 6;
    Check(VexilAppendCanSignalToCanMessage(0, &signal) == 1, "a second signal is appended");
}

static void AppendDescriptions(void) {
    const CanEnumRecord neutral = {0, "Neutral"};
    const CanEnumRecord reverse = {-1, "Reverse"};
    const CanEnumRecord idle = {0, "Idle"};
    Check(VexilAppendEnumToCanSignal(0, 1, &neutral) == 1, "a description is appended");
    Check(VexilAppendEnumToCanSignal(0, 1, &reverse) == 1, "a lower value is appended");
    Check(VexilAppendEnumToCanSignal(0, 1, &idle) == 1, "a described value takes a second text");
    Check(VexilAppendEnumToCanSignal(0, 2, &idle) == 0, "a signal that is not there");
}

/* What AppendMessage, AppendSignals and AppendDescriptions stored, fetched again. */
static void CheckModel(const char* when) {
    CanMessageRecord message;
    CanSignalRecord signal;
    CanEnumRecord description;
    uint32_t count = 0;
    fprintf(stderr, "model %s\n", when);
    Check(VexilGetNumCanMessages() == 1, "there is one message");
    Check(VexilGetCanMessageData(0, &message) == 1, "the message is fetched");
    Check(message.id == 291 && message.dlc == 8, "id and size of the message");
    CheckText(message.name, "Engine_data", "the name of the message");
    CheckText(message.longName, "Engine data", "the long name of the message");
    CheckText(message.transmitter, "ECU1", "the transmitter");
    CheckText(message.comment, "Main \\\"data\\\"", "the comment of the message");
    Check(message.signalCount == 2, "the message counts its signals");
    Check(VexilGetNumCanSignalsInCanMessage(0, &count) == 1 && count == 2, "two signals");

    Check(VexilGetCanSignalData(0, 0, &signal) == 1, "the first signal is fetched");
    CheckText(signal.name, "Speed", "the name of the signal");
    CheckText(signal.unitUtf8, "km/h", "the unit");
    CheckText(signal.receiverList, "ABS", "the receiver");
    CheckText(signal.comment, "Vehicle speed", "the comment of the signal");
    Check(signal.bitLength == 16 && signal.valueType == ValueUnsigned, "length and value type");
    Check(signal.factor == 0.1 && signal.maximum == 6553.5, "factor and maximum");

    Check(VexilGetCanSignalData(0, 1, &signal) == 1, "the second signal is fetched");
    Check(signal.multiplexType == MultiplexSelector, "the second signal is the selector");
    Check(signal.valueType == ValueSigned, "a float of four bits became a signed integer");
    CheckText(signal.receiverList, "ABS,ECU1", "two receivers");
    Check(signal.enumCount == 2, "the signal counts its descriptions");
    Check(VexilGetNumEnumsInCanSignal(0, 1, &count) == 1 && count == 2, "two descriptions");
    Check(VexilGetCanSignalEnumData(0, 1, 0, &description) == 1,
          "the first description is fetched");
    Check(description.value == -1, "the lowest value comes first");
    Check(VexilGetCanSignalEnumData(0, 1, 1, &description) == 1, "so is the second");
    CheckText(description.text, "Neutral - Idle", "the text of the second description");
    Check(VexilGetCanSignalEnumData(0, 1, 2, &description) == 0, "there is no third description");
}

static void TestWrite(const char* path) {
    char text[4096];
    const char* body = NULL;
    uint32_t resultCode = 99;
    Check(VexilWriteDbcFile(path, PathBufferSize(path), OrderAsStored, &resultCode) == 1,
          "the database is written");
    Check(resultCode == StateClosed, "a written file is closed");
    ReadWholeFile(path, text, sizeof text);
    Check(strncmp(text, preambleFront, strlen(preambleFront)) == 0, "the file begins as it should");
    body = strstr(text, "BS_ :");
    CheckText(body != NULL ? body : text, writtenBody, "the file behind its symbols");
}

static void TestClear(const char* path) {
    DatabaseInfo info = {99, 99};
    uint32_t resultCode = 99;
    VexilClearData();
    VexilGetDatabaseInfo(&info, sizeof info);
    Check(VexilGetNumCanMessages() == 0, "a cleared database holds no message");
    Check(info.protocolType == ProtocolPlainCan, "a clear resets the protocol type");
    Check(info.busType == BusCanFd, "a clear keeps the bus type");
    Check(VexilWriteDbcFile(path, PathBufferSize(path), OrderAsStored, &resultCode) == 0,
          "an empty database is not written");
    Check(resultCode == StateClosed, "an empty database touches no file");
}

static void TestRead(const char* path) {
    DatabaseInfo info = {99, 99};
    uint32_t resultCode = 99;
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
        Check(0, "the damaged file is made");
        return;
    }
    fputs("BO_ 291 Engine: 8 ECU1\n SG_ Speed 0|16@1+ (1,0)\nBO_ x Gearbox: 8 ECU1\nBU_ : ECU1\n",
          file);
    fclose(file);
    Check(VexilReadDbcFile(path, PathBufferSize(path), &resultCode) == 1, "damage fails no read");
    Check(VexilGetNumCanMessages() == 1, "the sound message is there");
    Check(VexilGetNumCanErrors() == 2, "two statements were refused");
    Check(VexilGetErrorData(0, &error) == 1, "the first refused statement is fetched");
    Check(error.code == StepSignalName && error.line == 2, "step and line of the signal");
    CheckText(error.text, "SG_ Speed 0|16@1+ (1,0)", "the refused signal");
    Check(VexilGetErrorData(1, &error) == 1, "the second refused statement is fetched");
    Check(error.code == StepMessageId && error.line == 3, "step and line of the message");
    CheckText(error.text, "BO_ x Gearbox: 8 ECU1", "the refused message");
    Check(VexilGetErrorData(2, &error) == 0, "there is no third one");
}

static void TestPaths(const char* path) {
    uint32_t resultCode = 99;
    Check(VexilReadDbcFile(path, 0, &resultCode) == 0, "an empty path is refused");
    Check(resultCode == StatePathEmpty, "the path is empty");
    Check(VexilReadDbcFile(path, MaxPathBufferSize + 1, &resultCode) == 0, "so is a long one");
    Check(resultCode == StatePathTooLong, "the path is too long");
    Check(VexilReadDbcFile("no/such/file", 13, &resultCode) == 0, "there is no such file");
    Check(resultCode == StateOpenFailed, "the file cannot be opened");
    Check(VexilGetNumCanMessages() == 0, "a read that fails to open leaves nothing");
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
    AppendMessage();
    AppendSignals();
    AppendDescriptions();
    CheckModel("as appended");
    TestWrite(written);
    TestClear(written);
    TestRead(written);
    CheckModel("as read");
    TestParseErrors(damaged);
    TestPaths(damaged);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
