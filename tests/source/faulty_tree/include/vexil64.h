/* The public header needs the C standard library alone. */
#include <stdint.h>

#include <string>
