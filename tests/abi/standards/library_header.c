/* vexil64.h in the oldest C and C++ that it promises: each record and each function is used.
 * SPDX-License-Identifier: MIT */
#include "vexil64.h"

/* Returns the number of successes, so that no compiler finds a result unused. */
int UseEachFunction(const char* path, uint32_t size);

int UseEachFunction(const char* path, uint32_t size) {
    DatabaseInfo info = {ProtocolPlainCan, BusClassicCan};
    CanMessageRecord message;
    CanSignalRecord signal;
    CanEnumRecord description;
    ParseError error;
    uint32_t code = StateClosed;
    uint32_t count = 0;
    int successes = VexilReadDbcFile(path, size, &code);
    VexilGetDatabaseInfo(&info, sizeof info);
    successes += VexilGetCanMessageData(0, &message);
    successes += VexilGetNumCanSignalsInCanMessage(0, &count);
    successes += VexilGetCanSignalData(0, 0, &signal);
    successes += VexilGetNumEnumsInCanSignal(0, 0, &count);
    successes += VexilGetCanSignalEnumData(0, 0, 0, &description);
    successes += VexilGetErrorData(0, &error);
    VexilClearData();
    VexilSetDatabaseInfo(&info, sizeof info);
    successes += VexilAppendCanMessage(&message);
    successes += VexilAppendCanSignalToCanMessage(0, &signal);
    successes += VexilAppendEnumToCanSignal(0, 0, &description);
    successes += VexilWriteDbcFile(path, size, OrderAsStored, &code);
    successes += VexilGetNumCanMessages() > 0;
    successes += VexilGetNumCanErrors() > 0;
    successes += VexilGetLibraryVersion() > 1;
    return successes;
}
