/* vexil64 - reads and writes DBC files, the text format in which CAN bus networks are described.
 * SPDX-License-Identifier: MIT
 *
 * This header is all that a program needs to call the library. It compiles as C89 and later and as
 * C++98 and later, in both cases with <stdint.h>.
 *
 * Conventions that hold for every function:
 *
 *  1. One database. The library keeps one process-wide database; there is no handle and no context
 *     argument. It is valid and empty from the moment the library is loaded (a static library: from
 *     the start of the program), and every function may be called at any time and in any order. At
 *     the end of the process the library empties it; exit handlers of the host that run later may
 *     still call and find it empty.
 *  2. Success is one byte: 1 for success, 0 for failure. The cause of a failed read or write is a
 *     result code, one of the State constants below.
 *  3. Indexes are unsigned, count from 0 and are positions in the present database. They mean
 *     nothing after the next read or clear. An index that is too large is a failure, never a fault.
 *  4. Text is UTF-8, NUL-terminated, in fixed arrays. A longer text of the database is cut at a
 *     character boundary on its way out. An array without a NUL on its way in loses its last byte.
 *     A text that is not valid UTF-8 is refused on its way in, but for a character that is cut off
 *     at its end, which is dropped (in a text of at most three bytes, all of the text is dropped).
 *  5. A path comes with the size of its buffer in bytes, and that size counts the NUL. A caller
 *     that passes the bare length loses the last character. At most 260 bytes are accepted.
 *  6. Records are the caller's. The library copies in and out and keeps no pointer of the caller's;
 *     a record that was fetched stays as it is whatever is called later. The gaps between fields
 *     are neither read nor written.
 *  7. Null. A null record is a failure where the function says so. Pointers to counts and result
 *     codes are not checked: they must be valid. A null path counts as an empty one.
 *  8. Calls must not overlap. The library takes no lock and starts no thread; a host that calls
 *     from several threads lets one call end before the next begins.
 *  9. Exhausted memory leaves a function as the C++ exception std::bad_alloc; nothing catches it at
 *     this boundary. The next clear or read starts from a sound database. No other exception, and
 *     no file content, path or record, ends a call in any way but its result.
 *
 * Written files are text in the platform's form: a line ends with a line feed here and with a
 * carriage return and a line feed on Windows. On reading, only Windows takes carriage returns away;
 * elsewhere one is white space like a blank.
 *
 * Numbers in files follow the locale that the host has set: reading takes the decimal point of the
 * C locale, writing the decimal point and the grouping of the global C++ locale. The library sets
 * neither; a host that has set none reads and writes the full stop.
 */
#ifndef VEXIL64_H
#define VEXIL64_H

#include <stddef.h>
#include <stdint.h>

/* A program that is linked with the static library defines VEXIL64_STATIC; the CMake package does.
 */
#if defined(VEXIL64_STATIC)
#define VEXIL64_API
#elif defined(VEXIL64_BUILDING) && defined(_WIN32)
#define VEXIL64_API __declspec(dllexport)
#elif defined(VEXIL64_BUILDING)
#define VEXIL64_API __attribute__((visibility("default")))
#elif defined(_WIN32)
#define VEXIL64_API __declspec(dllimport)
#else
#define VEXIL64_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Result codes of VexilReadDbcFile and VexilWriteDbcFile. 0, 1 and 9 are states of a file in use
 * and never the final code of a call; 7 is not used. */
enum {
    StateReading = 0,     /* a file is open for reading */
    StateWriting = 1,     /* a file is open for writing */
    StateClosed = 2,      /* success; with a failed write: the database holds no message */
    StatePathTooLong = 3, /* the path buffer is of 261 bytes or more; the path was not looked at */
    StatePathInvalid = 4, /* the path is not valid UTF-8 */
    StatePathEmpty = 5,   /* the path is empty, or its buffer is of size 0 */
    StateOpenFailed = 6,  /* the system could not open the file */
    StateStreamError = 8, /* reading or writing failed; with success: only at the very end */
    StateEndOfFile = 9    /* the end of a file was met */
};

/* Codes of ParseError: the step of a BO_ or SG_ statement that failed, with an example of each. */
enum {
    StepMessageId = 0,     /* BO_ x1 Engine: 8 ECU1       the id is not a plain number of 32 bits */
    StepMessageName = 1,   /* BO_ 291 Engine 8 ECU1       no name in front of a colon */
    StepMessageSize = 2,   /* BO_ 291 Engine: big ECU1    no number behind the colon */
    StepSignalName = 3,    /* SG_ Speed 0|16@1+ (1,0)     no colon behind the name */
    StepSignalLayout = 4,  /* SG_ Speed : 0|16@2+ (1,0)   start bit, length, byte order or sign */
    StepSignalScaling = 5, /* SG_ Speed : 0|16@1+ (1)     factor and offset */
    StepSignalRange = 6    /* SG_ Speed : 0|16@1+ (1,0) [0]   minimum and maximum */
};

/* Values of DatabaseInfo.protocolType. */
enum { ProtocolPlainCan = 0, ProtocolJ1939 = 1, ProtocolNmea = 2 };

/* Values of DatabaseInfo.busType. */
enum { BusClassicCan = 0, BusCanFd = 1 };

/* Values of CanSignalRecord.multiplexType. */
enum { MultiplexNone = 0, MultiplexSelector = 1, MultiplexSelected = 2 };

/* Values of CanSignalRecord.byteOrder. */
enum { ByteOrderBigEndian = 0, ByteOrderLittleEndian = 1 };

/* Values of CanSignalRecord.valueType. */
enum { ValueUnsigned = 0, ValueSigned = 1, ValueFloat32 = 2, ValueFloat64 = 3 };

/* Values of the order option of VexilWriteDbcFile. Every other value means OrderAsStored. */
enum { OrderByIdDescending = 0, OrderByNameAscending = 1, OrderAsStored = 2 };

/* Sizes of the text arrays, the NUL included, and the limits that a host may want to know. */
enum {
    ShortTextSize = 33,
    LongTextSize = 256,
    MaxPathBufferSize = 260,
    MaxSignalsPerMessage = 10000
};

/* What holds for the network as a whole, 8 bytes. */
typedef struct DatabaseInfo {
    uint32_t protocolType; /*   0  Protocol constant */
    uint32_t busType;      /*   4  Bus constant; outlives VexilClearData */
} DatabaseInfo;

/* A message, 640 bytes. "out" is what VexilGetCanMessageData stores, "in" what
 * VexilAppendCanMessage takes. */
typedef struct CanMessageRecord {
    uint32_t id;                 /*   0  out, in: id with the extended-frame bit, never checked */
    char name[ShortTextSize];    /*   4  out: identifier of at most 32 characters; in: ignored */
    uint32_t dlc;                /*  40  out, in: size in bytes, never checked */
    char longName[LongTextSize]; /*  44  out, in: name for display; in: name is made from it */
    char transmitter[ShortTextSize]; /* 300  out, in: sending node; in: made an identifier */
    uint64_t signalCount;            /* 336  out: number of signals; in: ignored */
    char comment[LongTextSize];   /* 344  out, in: comment; each double quote behind a backslash */
    char sendType[ShortTextSize]; /* 600  out: GenMsgSendType of the file; in: ignored */
    int32_t cycleTime;            /* 636  out: GenMsgCycleTime of the file; in: ignored */
} CanMessageRecord;

/* A signal, 944 bytes. "out" is what VexilGetCanSignalData stores, "in" what
 * VexilAppendCanSignalToCanMessage takes. */
typedef struct CanSignalRecord {
    char name[ShortTextSize];    /*   0  out: identifier of at most 32 characters; in: ignored */
    char longName[LongTextSize]; /*  33  out, in: name for display; in: name is made from it */
    char unit[ShortTextSize];    /* 289  out: unit in ASCII; in: the unit in UTF-8 */
    char receiverList[LongTextSize]; /* 322  out, in: receiving nodes with commas between them */
    char comment[LongTextSize];   /* 578  out, in: comment; each double quote behind a backslash */
    uint32_t multiplexType;       /* 836  out, in: Multiplex constant, never checked */
    uint32_t multiplexValue;      /* 840  out, in: selector value at which the signal is there */
    uint32_t startBit;            /* 844  out, in: start bit, never checked */
    uint32_t bitLength;           /* 848  out, in: length in bits, never checked */
    uint32_t byteOrder;           /* 852  out, in: ByteOrder constant, never checked */
    uint32_t valueType;           /* 856  out, in: Value constant; in: a ValueFloat32 that is not
                                          of 32 bits and a ValueFloat64 that is not of 64 bits
                                          become ValueSigned */
    double factor;                /* 864  out, in: physical value = raw value * factor + offset */
    double offset;                /* 872  out, in */
    double minimum;               /* 880  out, in: lower bound of the physical value */
    double maximum;               /* 888  out, in: upper bound of the physical value */
    uint32_t enumCount;           /* 896  out: number of value descriptions; in: ignored */
    int32_t startValue;           /* 900  out, in: GenSigStartValue */
    int32_t inactiveValue;        /* 904  out, in: GenSigInactiveValue */
    char unitUtf8[ShortTextSize]; /* 908  out: unit in UTF-8; in: ignored */
} CanSignalRecord;

/* A value description, 260 bytes. */
typedef struct CanEnumRecord {
    int32_t value;           /*   0  raw value */
    char text[LongTextSize]; /*   4  its description */
} CanEnumRecord;

/* A statement that the last read refused, 264 bytes. */
typedef struct ParseError {
    uint32_t code;           /*   0  Step constant */
    uint32_t line;           /*   4  number of the line above the next keyword, counted from 1: the
                                     line of the statement where the next one follows directly */
    char text[LongTextSize]; /*   8  front of the statement, at most 254 bytes and always without
                                     its last byte */
} ParseError;

/* -- The frame ------------------------------------------------------------------------------- */

/* Returns the version of the library, 1.33. */
VEXIL64_API float VexilGetLibraryVersion(void);

/* Clears the database, then reads a DBC file into it. A statement that cannot be used never fails a
 * read: a refused BO_ or SG_ statement leaves a ParseError, every other one is dropped in silence.
 *   path            the file, UTF-8; null counts as empty.
 *   pathBufferSize  size of the buffer at path in bytes, counting the NUL; 0 is StatePathEmpty, 261
 *                   and more StatePathTooLong.
 *   resultCode      receives the result code; not checked for null, always written.
 * Returns 1 with StateClosed when the file was read to its end; 1 with StateStreamError when its
 * stream was bad all the same, which no runtime is known to do. A failure of the closing is not
 * told. Returns 0 with StateStreamError when reading failed on the way: what was read until then
 * stays in the database. Returns 0 with another code when the file was not opened: the database is
 * then empty. In each case busType keeps its value unless the file sets it. */
VEXIL64_API uint8_t VexilReadDbcFile(const char* path, uint32_t pathBufferSize,
                                     uint32_t* resultCode);

/* Empties the database: no messages, no parse errors, protocolType 0. busType stays as it is. */
VEXIL64_API void VexilClearData(void);

/* Copies the first bytes of the DatabaseInfo out.
 *   destination  receives them; with null nothing is copied.
 *   size         bytes to copy; 0 copies nothing, more than 8 copies 8, 4 copies protocolType only.
 */
VEXIL64_API void VexilGetDatabaseInfo(void* destination, uint64_t size);

/* Copies bytes over the first bytes of the DatabaseInfo. The values are not checked.
 *   source  holds them; with null nothing is copied.
 *   size    bytes to copy; 0 copies nothing, more than 8 copies 8. */
VEXIL64_API void VexilSetDatabaseInfo(const void* source, uint64_t size);

/* Returns the number of messages in the database. */
VEXIL64_API uint64_t VexilGetNumCanMessages(void);

/* -- Records --------------------------------------------------------------------------------- */

/* Fetches a message.
 *   messageIndex  0 to VexilGetNumCanMessages() - 1, in the order of reading and appending.
 *   record        receives the message; null is a failure.
 * Returns 1 with the record filled. Returns 0 with the record untouched when the index is too large
 * or the record is null. Texts that do not fit are cut, which is no failure. */
VEXIL64_API uint8_t VexilGetCanMessageData(uint32_t messageIndex, CanMessageRecord* record);

/* Tells how many signals a message has.
 *   messageIndex  as in VexilGetCanMessageData.
 *   count         receives the number, at most MaxSignalsPerMessage; not checked for null.
 * Returns 1, or 0 with count untouched when the index is too large. */
VEXIL64_API uint8_t VexilGetNumCanSignalsInCanMessage(uint32_t messageIndex, uint32_t* count);

/* Fetches a signal of a message.
 *   messageIndex  as in VexilGetCanMessageData.
 *   signalIndex   0 to the number of signals - 1, in the order of reading and appending.
 *   record        receives the signal; null is a failure.
 * Returns 1 with the record filled. Returns 0 with the record untouched when an index is too large
 * or the record is null. Texts that do not fit are cut, which is no failure; receiverList may so
 * end inside a name. */
VEXIL64_API uint8_t VexilGetCanSignalData(uint32_t messageIndex, uint32_t signalIndex,
                                          CanSignalRecord* record);

/* Tells how many value descriptions a signal has.
 *   messageIndex, signalIndex  as in VexilGetCanSignalData.
 *   count                      receives the number; not checked for null.
 * Returns 1, or 0 with count untouched when an index is too large. */
VEXIL64_API uint8_t VexilGetNumEnumsInCanSignal(uint32_t messageIndex, uint32_t signalIndex,
                                                uint32_t* count);

/* Fetches a value description of a signal.
 *   messageIndex, signalIndex  as in VexilGetCanSignalData.
 *   enumIndex                  0 to the number of descriptions - 1, in ascending order of the
 * value. record                     receives value and text; not checked for null. Returns 1 with
 * the record filled. Returns 0 with the record untouched when an index is too large, and 0 with an
 * empty text and the value untouched when the text cannot be cut at a character. */
VEXIL64_API uint8_t VexilGetCanSignalEnumData(uint32_t messageIndex, uint32_t signalIndex,
                                              uint32_t enumIndex, CanEnumRecord* record);

/* Adds a message without signals at the end of the database.
 *   record  the message; null is a failure. name, signalCount, sendType and cycleTime are ignored.
 * Returns 1 when it was added; neither id nor dlc is checked. Returns 0 with the database untouched
 * when the record is null or one of its texts is not valid UTF-8. */
VEXIL64_API uint8_t VexilAppendCanMessage(const CanMessageRecord* record);

/* Adds a signal at the end of a message.
 *   messageIndex  as in VexilGetCanMessageData.
 *   record        the signal; null is a failure. name, unitUtf8 and enumCount are ignored.
 * Returns 1 when the record was taken, also when the message already has MaxSignalsPerMessage
 * signals and the new one is therefore dropped. Returns 0 with the database untouched when the
 * index is too large, the record is null or one of its texts is not valid UTF-8. */
VEXIL64_API uint8_t VexilAppendCanSignalToCanMessage(uint32_t messageIndex,
                                                     const CanSignalRecord* record);

/* Adds a value description to a signal. A value that is described already gets the new text behind
 * its old one, with " - " between them.
 *   messageIndex, signalIndex  as in VexilGetCanSignalData.
 *   record                     value and text; not checked for null.
 * Returns 1 when it was added. Returns 0 with the database untouched when an index is too large or
 * the text is not valid UTF-8. */
VEXIL64_API uint8_t VexilAppendEnumToCanSignal(uint32_t messageIndex, uint32_t signalIndex,
                                               const CanEnumRecord* record);

/* -- Parse errors ---------------------------------------------------------------------------- */

/* Returns the number of statements that the last read refused; 0 after VexilClearData. */
VEXIL64_API uint64_t VexilGetNumCanErrors(void);

/* Fetches a refused statement.
 *   errorIndex  0 to VexilGetNumCanErrors() - 1, in the order of the file.
 *   record      receives code, line and text; null is a failure.
 * Returns 1 with the record filled, or 0 with it untouched when the index is too large or the
 * record is null. */
VEXIL64_API uint8_t VexilGetErrorData(uint32_t errorIndex, ParseError* record);

/* -- Writing --------------------------------------------------------------------------------- */

/* Writes the whole database as a DBC file. An existing file is emptied as soon as it is opened.
 * Signals of one message that share a name get a numbered suffix, in the file and in the database
 * for good; nothing else in the database changes.
 *   path            the file, UTF-8; null counts as empty.
 *   pathBufferSize  as in VexilReadDbcFile.
 *   order           an Order constant; every value above 1 writes the messages as they stand.
 *   resultCode      receives the result code; not checked for null, always written.
 * Returns 1 with StateClosed when all was written. Returns 1 with StateStreamError when the last
 * line failed, and 0 with StateStreamError when an earlier line failed: the file then stays as far
 * as it got. A failure of the closing is not told; each line was flushed before. Returns 0 with
 * StateClosed and no file touched when the database holds no message. Returns 0 with another code
 * when the file was not opened: the database is then unchanged. */
VEXIL64_API uint8_t VexilWriteDbcFile(const char* path, uint32_t pathBufferSize, uint32_t order,
                                      uint32_t* resultCode);

#ifdef __cplusplus
} /* extern "C" */
#endif

/* The layout is part of the contract, so every compiler checks each size and offset. C before C11
 * and C++ before C++11 have no static assertion: an array of negative size is used in its place. */
#if defined(__cplusplus) && __cplusplus >= 201103L
#define VEXIL64_ASSERT(name, condition) static_assert(condition, #name)
#else
#define VEXIL64_ASSERT(name, condition) typedef char vexil64_assert_##name[(condition) ? 1 : -1]
#endif
#define VEXIL64_SIZE(type, size) VEXIL64_ASSERT(type##_size, sizeof(type) == (size))
#define VEXIL64_OFFSET(type, field, at) \
    VEXIL64_ASSERT(type##_##field, offsetof(type, field) == (at))

VEXIL64_SIZE(DatabaseInfo, 8);
VEXIL64_OFFSET(DatabaseInfo, protocolType, 0);
VEXIL64_OFFSET(DatabaseInfo, busType, 4);

VEXIL64_SIZE(CanMessageRecord, 640);
VEXIL64_OFFSET(CanMessageRecord, id, 0);
VEXIL64_OFFSET(CanMessageRecord, name, 4);
VEXIL64_OFFSET(CanMessageRecord, dlc, 40);
VEXIL64_OFFSET(CanMessageRecord, longName, 44);
VEXIL64_OFFSET(CanMessageRecord, transmitter, 300);
VEXIL64_OFFSET(CanMessageRecord, signalCount, 336);
VEXIL64_OFFSET(CanMessageRecord, comment, 344);
VEXIL64_OFFSET(CanMessageRecord, sendType, 600);
VEXIL64_OFFSET(CanMessageRecord, cycleTime, 636);

VEXIL64_SIZE(CanSignalRecord, 944);
VEXIL64_OFFSET(CanSignalRecord, name, 0);
VEXIL64_OFFSET(CanSignalRecord, longName, 33);
VEXIL64_OFFSET(CanSignalRecord, unit, 289);
VEXIL64_OFFSET(CanSignalRecord, receiverList, 322);
VEXIL64_OFFSET(CanSignalRecord, comment, 578);
VEXIL64_OFFSET(CanSignalRecord, multiplexType, 836);
VEXIL64_OFFSET(CanSignalRecord, multiplexValue, 840);
VEXIL64_OFFSET(CanSignalRecord, startBit, 844);
VEXIL64_OFFSET(CanSignalRecord, bitLength, 848);
VEXIL64_OFFSET(CanSignalRecord, byteOrder, 852);
VEXIL64_OFFSET(CanSignalRecord, valueType, 856);
VEXIL64_OFFSET(CanSignalRecord, factor, 864);
VEXIL64_OFFSET(CanSignalRecord, offset, 872);
VEXIL64_OFFSET(CanSignalRecord, minimum, 880);
VEXIL64_OFFSET(CanSignalRecord, maximum, 888);
VEXIL64_OFFSET(CanSignalRecord, enumCount, 896);
VEXIL64_OFFSET(CanSignalRecord, startValue, 900);
VEXIL64_OFFSET(CanSignalRecord, inactiveValue, 904);
VEXIL64_OFFSET(CanSignalRecord, unitUtf8, 908);

VEXIL64_SIZE(CanEnumRecord, 260);
VEXIL64_OFFSET(CanEnumRecord, value, 0);
VEXIL64_OFFSET(CanEnumRecord, text, 4);

VEXIL64_SIZE(ParseError, 264);
VEXIL64_OFFSET(ParseError, code, 0);
VEXIL64_OFFSET(ParseError, line, 4);
VEXIL64_OFFSET(ParseError, text, 8);

#undef VEXIL64_ASSERT
#undef VEXIL64_SIZE
#undef VEXIL64_OFFSET

#endif /* VEXIL64_H */
