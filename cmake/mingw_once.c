/* Stands in for pthread_once in the library for Windows, by --wrap of the linker. The one of
 * MinGW-w64 takes a place for data of the thread (TlsAlloc) that it never gives back. A process has
 * 1088 of them, so it would end at the latest when a host loads, uses and unloads the library for
 * the 1088th time. windows.load_library does so more often.
 * SPDX-License-Identifier: MIT */
#include <windows.h>

enum { NotDone = 0, Running = 1, Done = 2 };

int __wrap_pthread_once(volatile LONG* once, void (*function)(void)) {
    if (InterlockedCompareExchange(once, Running, NotDone) == NotDone) {
        function();
        InterlockedExchange(once, Done);
    }
    while (*once != Done) {
        Sleep(0);
    }
    return 0;
}
