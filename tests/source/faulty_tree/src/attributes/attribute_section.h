// Stands above the messages, and below the writer that calls it.
#include "frame/lower.h"
#include "write/writer.h"
