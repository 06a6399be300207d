/* The public header needs the C standard library alone. */
#include <stdint.h>

#include <string>

/* A record with a field that no table has. */
typedef struct Record {
    uint32_t missing; /* 0 */
} Record;

/* Has a summary that goes on
 * in its second line.
 *
 * Parameters:
 *   first  is documented.
 * Returns:
 *   1 */
VEXIL64_API uint8_t LongSummary(uint32_t first);

/* Does not document its last parameter.
 *
 * Parameters:
 *   first           is documented.
 *   pathBufferSize  is documented. */
VEXIL64_API void UnknownParameterOfALongDeclaration(const char* first, uint32_t pathBufferSize,
                                                    uint32_t* second);

/* Does not say what it returns. */
VEXIL64_API float NoReturn(void);
