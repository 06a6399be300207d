// Keeps every rule, with traps for a check that reads too much: new text, "#if", printf( and
// delete.
#include <new>
#include <string>

#include "vexil64.h"

struct Sound {
    Sound(const Sound&) = delete;
    std::string newText = "new \" std::cout << 'delete' // ";
    char quote = '"';
    char renewed = '\'';  // abort() and exit(1) are no calls in a comment
    static Sound* In(void* place) { return ::new (place) Sound; }
    void Printing(), Exiting(), AbortReading();
};
