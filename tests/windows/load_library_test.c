/* A C host that is not linked with the library. Loads it by its name over a thousand times, uses it
 * and unloads it, like a host with plug-ins.
 *   load_library_test LIBRARY FILE    FILE is a DBC file with messages
 * SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#include "vexil64.h"

/* More than the thread-local storage indexes of a process, so that a leak of one is an error. */
enum { LoadCount = 1200 };

typedef uint8_t (*ReadFunction)(const char*, uint32_t, uint32_t*);
typedef uint64_t (*CountFunction)(void);

static int Fail(const char* what, int load) {
    fprintf(stderr, "FAILED: %s in load %d, error %lu\n", what, load, GetLastError());
    return EXIT_FAILURE;
}

/* Stores the address of a function in a pointer of the right type. Copies the bytes, because no
 * cast in C compiles without a warning everywhere. */
static void FindFunction(HMODULE module, const char* name, void* pointer) {
    const FARPROC function = GetProcAddress(module, name);
    memcpy(pointer, &function, sizeof function);
}

/* Loads, reads, unloads. */
static int LoadOnce(const char* library, const char* file, int load) {
    const HMODULE module = LoadLibraryA(library);
    ReadFunction readFile = NULL;
    CountFunction countMessages = NULL;
    uint32_t code = 99;
    if (module == NULL) {
        return Fail("LoadLibrary", load);
    }
    FindFunction(module, "VexilReadDbcFile", &readFile);
    FindFunction(module, "VexilGetNumCanMessages", &countMessages);
    if (readFile == NULL || countMessages == NULL) {
        return Fail("GetProcAddress", load);
    }
    if (countMessages() != 0) {
        return Fail("a library that was just loaded is empty", load);
    }
    if (readFile(file, (uint32_t)strlen(file) + 1, &code) != 1 || code != StateClosed) {
        return Fail("reading", load);
    }
    if (countMessages() == 0) {
        return Fail("the messages of the file", load);
    }
    if (!FreeLibrary(module)) {
        return Fail("FreeLibrary", load);
    }
    if (GetModuleHandleA(library) != NULL) {
        return Fail("the library stays loaded", load);
    }
    return EXIT_SUCCESS;
}

int main(int argc, char** argv) {
    DWORD handlesBefore = 0;
    DWORD handlesAfter = 0;
    if (argc != 3) {
        fprintf(stderr, "usage: load_library_test LIBRARY FILE\n");
        return EXIT_FAILURE;
    }
    for (int load = 1; load <= LoadCount; ++load) {
        if (LoadOnce(argv[1], argv[2], load) != EXIT_SUCCESS) {
            return EXIT_FAILURE;
        }
        if (load == 1) {
            GetProcessHandleCount(GetCurrentProcess(), &handlesBefore);
        }
    }
    GetProcessHandleCount(GetCurrentProcess(), &handlesAfter);
    if (handlesAfter > handlesBefore) {
        fprintf(stderr, "FAILED: %lu handles became %lu\n", handlesBefore, handlesAfter);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
