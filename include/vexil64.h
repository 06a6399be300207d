/* vexil64 - reads and writes DBC files, the text format that describes CAN bus networks.
 * SPDX-License-Identifier: MIT
 *
 * This header is all that a program needs to call the library. It compiles as C89 and later and as
 * C++98 and later, in both cases with <stdint.h>. Link with -lvexil64, with the flags of
 * "pkg-config --cflags --libs vexil64", or in CMake with vexil64::vexil64. docs/format.md describes
 * which statements of a file are read and how a file is written.
 *
 * Conventions of all functions
 *
 *  1. Database. The library has one database for the process; there is no handle and no context
 *     argument. It is valid and empty when the library is loaded, or for a static library when the
 *     program starts. Every function may be called at any time and in any order. At the end of the
 *     process the library empties the database; exit handlers that run later may still call it.
 *  2. Return values. Functions that can fail return 1 for success and 0 for failure. A read or
 *     write also stores a result code, one of the State constants.
 *  3. Indexes. They count from 0 and are positions in the current database, so the next read or
 *     clear invalidates them. An append keeps them valid, but an added value description moves
 *     those of the same signal with larger values. An out-of-range index makes the call return 0;
 *     it is never undefined behaviour.
 *  4. Text from the library. UTF-8, NUL-terminated, in fixed arrays. A longer text is cut at the
 *     end of a character, without a report. The database and a written file have the whole text.
 *  5. Text to the library. UTF-8 that ends at its first NUL; without a NUL, the last byte of the
 *     array is dropped. Text that is not valid UTF-8 is repaired or refused:
 *     - A character that was cut off at the end is dropped: the last 1, 2 or 3 bytes, if the text
 *       before them is valid and the first of them is at least 0xC0, 0xE0 or 0xF0 respectively.
 *       The bytes after this one are not checked, so "abcd\xFF" "e" becomes "abcd".
 *     - Any other text of at most 3 bytes becomes empty.
 *     - Any other text is refused, and the call fails.
 *  6. Paths. A path is UTF-8 and comes with the size of its buffer in bytes, which counts the NUL.
 *     A call with the length of the path instead loses its last character. The size may be at most
 *     260, so a path has at most 259 bytes.
 *  7. Memory. Records belong to the caller. The library copies from and to them, keeps no pointer,
 *     and neither reads nor writes the gaps between fields.
 *  8. Null pointers. Each function says which pointers may be null. All others must be valid; they
 *     are not checked.
 *  9. Threads. Calls must not overlap. The library takes no lock and starts no thread.
 * 10. Out of memory. A function throws the C++ exception std::bad_alloc. A program that cannot
 *     catch it is terminated: a program in C, and on Windows a program of any compiler but
 *     MinGW-w64. No other exception leaves a function. If a read threw, call VexilClearData or
 *     VexilReadDbcFile before any other function. If a fetch or append threw, the database is
 *     unchanged. If a write threw, it may have renamed signals, and the file is incomplete.
 * 11. Identifiers. An identifier consists of ASCII letters, digits and "_", does not start with a
 *     digit, and has at most 32 characters. Text becomes an identifier in this way: it is cut to 32
 *     characters, then a leading digit and each other character become "_". Empty text stays empty.
 * 12. Line ends. On Linux a written line ends with a line feed, and a carriage return in a file
 *     that is read is white space like a blank. On Windows a written line ends with a carriage
 *     return and a line feed, and that pair is read as a line feed; a carriage return elsewhere is
 *     white space.
 * 13. Locale. The library sets no locale. Numbers are read with the decimal point of the C locale
 *     of the program, and written with the decimal point and the digit grouping of its global C++
 *     locale. A program that sets no locale reads and writes the full stop. On Windows, numbers are
 *     always written with the full stop, and read with it unless the program uses the runtime
 *     MSVCRT.dll and sets its C locale.
 *
 * What happens to each field
 *
 * BO_, SG_ and so on are statements of the file; BU_ is its list of nodes. Names such as J1939PGN
 * and GenMsgCycleTime are attributes of the file. A field gets the value that the object has, or
 * else the default of the attribute; defaults of the two Marrowby attributes are ignored. "As it
 * is" means without a check or change.
 *
 *   DatabaseInfo    Read from a file            VexilSetDatabaseInfo    Written to a file
 *   --------------  --------------------------  ----------------------  --------------------------
 *   protocolType    J1939PGN, IsNMEA; else 0    as it is                1: J1939PGN; 2: IsNMEA
 *   busType         BusType; else unchanged     as it is                1: BusType "CAN FD"
 *
 *   Message         Read from a file            Append                  Written to a file
 *   --------------  --------------------------  ----------------------  --------------------------
 *   id              BO_                         as it is                BO_
 *   name            BO_, as an identifier       ignored; longName as    BO_
 *                                               an identifier
 *   dlc             BO_                         as it is                BO_
 *   longName        Marrowby_Msg_Name, else     tabs and line ends      Marrowby_Msg_Name, if it
 *                   the name in BO_             become blanks           differs from name; (Q)
 *   transmitter     BO_, as an identifier       as an identifier        BO_, BU_; (M) if empty
 *   signalCount     number of signals           ignored                 -
 *   comment         CM_ BO_; (E)                (E)                     CM_ BO_
 *   sendType        GenMsgSendType, as an       ignored; empty          never
 *                   identifier; else empty
 *   cycleTime       GenMsgCycleTime; else 0     ignored; 0              never
 *
 *   Signal          Read from a file            Append                  Written to a file
 *   --------------  --------------------------  ----------------------  --------------------------
 *   name            SG_, as an identifier       ignored; longName as    SG_; duplicates in a
 *                                               an identifier           message get a number
 *   longName        Marrowby_Sig_Name, else     tabs and line ends      Marrowby_Sig_Name, if it
 *                   the name in SG_             become blanks           differs from name; (Q)
 *   unit            SG_; "_" for each           the unit in UTF-8;      SG_; "_" for each
 *                   non-ASCII character         sets both fields        non-ASCII character; (Q)
 *   unitUtf8        SG_, in UTF-8               ignored                 never
 *   receiverList    SG_, identifiers joined     split at commas into    SG_, BU_; (M) if empty
 *                   by commas                   identifiers
 *   comment         CM_ SG_; (E)                (E)                     CM_ SG_
 *   multiplexType   SG_: M, m or none           as it is                SG_; above 2: none
 *   multiplexValue  SG_: number after m; 0      as it is                SG_, if the type is 2
 *   startBit        SG_                         as it is                SG_
 *   bitLength       SG_                         as it is                SG_
 *   byteOrder       SG_; 1 if missing           as it is                SG_; above 1: 1
 *   valueType       sign in SG_, SIG_VALTYPE_   as it is; a float of    SG_, SIG_VALTYPE_
 *                                               wrong length: signed
 *   factor, offset  SG_                         as it is                SG_; 10 digits
 *   minimum,        SG_; exchanged if           as it is                SG_; 10 digits
 *   maximum         minimum > maximum
 *   enumCount       number of descriptions      ignored                 -
 *   startValue      GenSigStartValue; else 0    as it is                never
 *   inactiveValue   GenSigInactiveValue; else 0 as it is                never
 *
 *   Description     Read from a file            Append                  Written to a file
 *   --------------  --------------------------  ----------------------  --------------------------
 *   value, text     VAL_                        as it is                VAL_; (Q); never for a
 *                                                                       float signal
 *
 *   (E)  Escaped: the comment has a backslash before each double quote. An append takes quotes with
 *        and without a backslash and adds those that are missing.
 *   (Q)  Not escaped: a double quote in the text can cut it when the file is read again.
 *   (M)  "Marrowby", the name of a placeholder node: the format requires a node here. A read
 *        returns it like any other node.
 *
 * A keyword of the format as a word of its own, such as "BO_", can cut any text when the file is
 * read again. docs/format.md lists all that a written file loses.
 *
 * Outcomes of a read
 *
 *   Returns  Result code                         Database
 *   -------  ----------------------------------  ------------------------------------------------
 *   1        StateClosed                         what the file defines; see the parse errors
 *   0        StateStreamError                    what was read before reading failed
 *   0        StatePathTooLong, StatePathInvalid  empty: it is cleared before the path is checked
 *            StatePathEmpty, StateOpenFailed
 *
 * In all cases busType keeps its value unless the file sets it.
 *
 * Outcomes of a write
 *
 *   Returns  Result code                         Database           File
 *   -------  ----------------------------------  -----------------  ------------------------------
 *   1        StateClosed                         renamed signals    complete
 *   1        StateStreamError                    renamed signals    the last line may be cut off
 *   0        StateStreamError                    renamed signals    incomplete
 *   0        StateClosed                         has no message     not touched
 *   0        StatePathTooLong, StatePathInvalid  unchanged          not opened
 *            StatePathEmpty, StateOpenFailed
 *
 * "Renamed signals": signals of one message that share a name get a numbered suffix, as in
 * "Level_0000", "Level_0001". They keep it after the write. Nothing else in the database changes.
 *
 * Example: read a file, add a message with an extended id and a copied signal, write a file
 *
 *   static const char in[] = "network.dbc", out[] = "extended.dbc";
 *   CanMessageRecord message = {0};
 *   CanSignalRecord signal;
 *   uint32_t code, added;
 *   if (!VexilReadDbcFile(in, sizeof in, &code)) {
 *       return 1;
 *   }
 *   message.id = 0x80000000 | 0x18FEF100;
 *   message.dlc = 8;
 *   strcpy(message.longName, "VehicleSpeed");
 *   VexilAppendCanMessage(&message);
 *   added = (uint32_t)VexilGetNumCanMessages() - 1;
 *   if (VexilGetCanSignalData(0, 0, &signal)) {
 *       strcpy(signal.unit, signal.unitUtf8);
 *       VexilAppendCanSignalToCanMessage(added, &signal);
 *   }
 *   VexilWriteDbcFile(out, sizeof out, OrderAsStored, &code);
 *
 * The copy of "unitUtf8" keeps the non-ASCII characters of the unit. Value descriptions are not
 * part of a signal record; copy them with VexilGetCanSignalEnumData and VexilAppendEnumToCanSignal.
 * In a record of zeros the factor is 0 and the byte order is big-endian: set "factor" and
 * "byteOrder" of a new signal.
 */
#ifndef VEXIL64_H
#define VEXIL64_H

#include <stddef.h>
#include <stdint.h>

/* A program that links with the static library must define VEXIL64_STATIC. The CMake package
 * defines it. */
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

/* Result codes of VexilReadDbcFile and VexilWriteDbcFile. 0, 1 and 9 are states of an open file and
 * never the result code of a call. 7 is not used. */
enum {
    StateReading = 0,     /* a file is open for reading */
    StateWriting = 1,     /* a file is open for writing */
    StateClosed = 2,      /* success; with return value 0 from a write: the database is empty */
    StatePathTooLong = 3, /* the size of the path buffer is above 260; the path was not read */
    StatePathInvalid = 4, /* the path is not valid UTF-8, or one byte that is not NUL */
    StatePathEmpty = 5,   /* the path is null or empty, its buffer has size 0, or it is invalid and
                             has at most 3 bytes (convention 5) */
    StateOpenFailed = 6,  /* the system could not open the file */
    StateStreamError = 8, /* reading or writing failed; on Linux also: the input is a folder */
    StateEndOfFile = 9    /* the end of the file was reached */
};

/* Codes of ParseError: the step of a BO_ or SG_ statement that failed, with an example of each. */
enum {
    StepMessageId = 0,     /* BO_ x1 Engine: 8 ECU1       the id is not an unsigned 32-bit number */
    StepMessageName = 1,   /* BO_ 291 Engine 8 ECU1       no name before a colon */
    StepMessageSize = 2,   /* BO_ 291 Engine: big ECU1    no number after the colon */
    StepSignalName = 3,    /* SG_ Speed 0|16@1+ (1,0)     no colon after the name */
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

/* Sizes of arrays in bytes, with the NUL, and the limit of signals in a message. */
enum {
    ShortTextSize = 33,
    LongTextSize = 256,
    MaxPathBufferSize = 260,
    MaxSignalsPerMessage = 10000
};

/* Properties of the whole network, 8 bytes. The numbers in the comments of this record and the
 * others are the offsets of the fields in bytes. */
typedef struct DatabaseInfo {
    uint32_t protocolType; /*   0  Protocol constant */
    uint32_t busType;      /*   4  Bus constant; VexilClearData keeps it */
} DatabaseInfo;

/* A message, 640 bytes. The table at the top says where each field comes from and goes to. */
typedef struct CanMessageRecord {
    uint32_t id;                     /*   0  CAN id; bit 31 (0x80000000) is set for extended ids */
    char name[ShortTextSize];        /*   4  name as an identifier (convention 11) */
    uint32_t dlc;                    /*  40  payload size in bytes, not the DLC code */
    char longName[LongTextSize];     /*  44  name without the limits of an identifier */
    char transmitter[ShortTextSize]; /* 300  sending node; may be empty */
    uint64_t signalCount;            /* 336  number of signals */
    char comment[LongTextSize];      /* 344  comment, with each double quote as \" */
    char sendType[ShortTextSize];    /* 600  text of GenMsgSendType in the file */
    int32_t cycleTime;               /* 636  number of GenMsgCycleTime in the file, by custom in
                                             milliseconds */
} CanMessageRecord;

/* A signal, 944 bytes. The table at the top says where each field comes from and goes to. */
typedef struct CanSignalRecord {
    char name[ShortTextSize];        /*   0  name as an identifier (convention 11) */
    char longName[LongTextSize];     /*  33  name without the limits of an identifier */
    char unit[ShortTextSize];        /* 289  fetched: unit in ASCII; appended: unit in UTF-8 */
    char receiverList[LongTextSize]; /* 322  receiving nodes, separated by commas */
    char comment[LongTextSize];      /* 578  comment, with each double quote as \" */
    uint32_t multiplexType;          /* 836  Multiplex constant */
    uint32_t multiplexValue;         /* 840  selector value for which the signal is present */
    uint32_t startBit;               /* 844  start bit, counted as in SG_ for its byte order */
    uint32_t bitLength;              /* 848  length in bits */
    uint32_t byteOrder;              /* 852  ByteOrder constant */
    uint32_t valueType;              /* 856  Value constant */
    double factor;                   /* 864  physical value = raw value * factor + offset */
    double offset;                   /* 872 */
    double minimum;                  /* 880  smallest physical value */
    double maximum;                  /* 888  largest physical value */
    uint32_t enumCount;              /* 896  number of value descriptions */
    int32_t startValue;              /* 900  number of GenSigStartValue, by custom a raw value */
    int32_t inactiveValue;           /* 904  number of GenSigInactiveValue, by custom a raw value */
    char unitUtf8[ShortTextSize];    /* 908  fetched: unit in UTF-8 */
} CanSignalRecord;

/* A value description of a signal, 260 bytes. */
typedef struct CanEnumRecord {
    int32_t value;           /*   0  raw value */
    char text[LongTextSize]; /*   4  description of the value */
} CanEnumRecord;

/* A BO_ or SG_ statement that could not be parsed, 264 bytes. */
typedef struct ParseError {
    uint32_t code;           /*   0  Step constant */
    uint32_t line;           /*   4  line before the next keyword, counted from 1; see the notes
                                     of VexilGetErrorData */
    char text[LongTextSize]; /*   8  the statement, at most 254 bytes of it; see there */
} ParseError;

/* -- The database ---------------------------------------------------------------------------- */

/* Returns the version of the library.
 *
 * Returns:
 *   1.33 */
VEXIL64_API float VexilGetLibraryVersion(void);

/* Clears the database and reads a DBC file into it.
 *
 * Parameters:
 *   path            path of the file, UTF-8; null counts as empty.
 *   pathBufferSize  size of the buffer of path in bytes, with the NUL; at most 260.
 *   resultCode      receives the result code in all cases; must not be null.
 * Returns:
 *   1  The file was read to its end.
 *   0  The file could not be opened or read; see "Outcomes of a read".
 * Notes:
 *   Statements that cannot be used do not make a read fail. A BO_ or SG_ statement that cannot be
 *   parsed leaves a ParseError, and the remaining signals of the message are dropped without one.
 *   Every other statement that cannot be used is dropped without a report. The order of the
 *   statements matters; docs/format.md has the rules. */
VEXIL64_API uint8_t VexilReadDbcFile(const char* path, uint32_t pathBufferSize,
                                     uint32_t* resultCode);

/* Removes all messages and parse errors from the database.
 *
 * Notes:
 *   protocolType becomes 0. busType keeps its value. */
VEXIL64_API void VexilClearData(void);

/* Copies the DatabaseInfo of the database, or its first bytes, to the caller.
 *
 * Parameters:
 *   destination  receives the bytes; null: nothing is copied.
 *   size         number of bytes: 8 for all, 4 for protocolType alone; a larger size copies 8. */
VEXIL64_API void VexilGetDatabaseInfo(void* destination, uint64_t size);

/* Replaces the DatabaseInfo of the database, or its first bytes.
 *
 * Parameters:
 *   source  the new bytes; null: nothing is copied. The values are not checked.
 *   size    number of bytes: 8 for all, 4 for protocolType alone; a larger size copies 8. */
VEXIL64_API void VexilSetDatabaseInfo(const void* source, uint64_t size);

/* Returns the number of messages in the database.
 *
 * Returns:
 *   The number of messages, 0 for an empty database. */
VEXIL64_API uint64_t VexilGetNumCanMessages(void);

/* -- Records --------------------------------------------------------------------------------- */

/* Copies a message to the caller.
 *
 * Parameters:
 *   messageIndex  0 to VexilGetNumCanMessages() - 1, in the order of reading and appending.
 *   record        receives the message; null is an error.
 * Returns:
 *   1  The record was filled.
 *   0  The index is out of range or the record is null. The record is unchanged. */
VEXIL64_API uint8_t VexilGetCanMessageData(uint32_t messageIndex, CanMessageRecord* record);

/* Stores the number of signals of a message.
 *
 * Parameters:
 *   messageIndex  as in VexilGetCanMessageData.
 *   count         receives the number, at most MaxSignalsPerMessage; must not be null.
 * Returns:
 *   1  The number was stored.
 *   0  The index is out of range. The count is unchanged. */
VEXIL64_API uint8_t VexilGetNumCanSignalsInCanMessage(uint32_t messageIndex, uint32_t* count);

/* Copies a signal of a message to the caller.
 *
 * Parameters:
 *   messageIndex  as in VexilGetCanMessageData.
 *   signalIndex   0 to the number of signals - 1, in the order of reading and appending.
 *   record        receives the signal; null is an error.
 * Returns:
 *   1  The record was filled.
 *   0  An index is out of range or the record is null. The record is unchanged.
 * Notes:
 *   A receiverList that is too long is cut like any text, so it can end in a part of a name. */
VEXIL64_API uint8_t VexilGetCanSignalData(uint32_t messageIndex, uint32_t signalIndex,
                                          CanSignalRecord* record);

/* Stores the number of value descriptions of a signal.
 *
 * Parameters:
 *   messageIndex, signalIndex  as in VexilGetCanSignalData.
 *   count                      receives the number; must not be null.
 * Returns:
 *   1  The number was stored.
 *   0  An index is out of range. The count is unchanged. */
VEXIL64_API uint8_t VexilGetNumEnumsInCanSignal(uint32_t messageIndex, uint32_t signalIndex,
                                                uint32_t* count);

/* Copies a value description of a signal to the caller.
 *
 * Parameters:
 *   messageIndex, signalIndex  as in VexilGetCanSignalData.
 *   enumIndex                  0 to the number of descriptions - 1, in ascending order of value.
 *   record                     receives the value and its text; must not be null.
 * Returns:
 *   1  The record was filled.
 *   0  An index is out of range. The record is unchanged. */
VEXIL64_API uint8_t VexilGetCanSignalEnumData(uint32_t messageIndex, uint32_t signalIndex,
                                              uint32_t enumIndex, CanEnumRecord* record);

/* Adds a message without signals at the end of the database.
 *
 * Parameters:
 *   record  the message; null is an error.
 * Returns:
 *   1  The message was added.
 *   0  The record is null or one of its texts is refused. The database is unchanged.
 * Notes:
 *   Neither id nor dlc is checked. Several messages may have one id. */
VEXIL64_API uint8_t VexilAppendCanMessage(const CanMessageRecord* record);

/* Adds a signal at the end of a message.
 *
 * Parameters:
 *   messageIndex  as in VexilGetCanMessageData.
 *   record        the signal; null is an error.
 * Returns:
 *   1  The signal was added. Also returns 1, adding nothing, when the message already has
 *      MaxSignalsPerMessage signals.
 *   0  The index is out of range, the record is null or one of its texts is refused. The database
 *      is unchanged.
 * Notes:
 *   A float is of wrong length when a ValueFloat32 has not 32 bits or a ValueFloat64 not 64 bits.
 *   It becomes a ValueSigned. */
VEXIL64_API uint8_t VexilAppendCanSignalToCanMessage(uint32_t messageIndex,
                                                     const CanSignalRecord* record);

/* Adds a value description to a signal.
 *
 * Parameters:
 *   messageIndex, signalIndex  as in VexilGetCanSignalData.
 *   record                     the value and its text; must not be null.
 * Returns:
 *   1  The description was added.
 *   0  An index is out of range or the text is refused. The database is unchanged.
 * Notes:
 *   If the value already has a description, the text is added to it after " - ". Descriptions of a
 *   float signal are stored but never written. */
VEXIL64_API uint8_t VexilAppendEnumToCanSignal(uint32_t messageIndex, uint32_t signalIndex,
                                               const CanEnumRecord* record);

/* -- Parse errors ---------------------------------------------------------------------------- */

/* Returns the number of parse errors of the last read.
 *
 * Returns:
 *   The number of BO_ and SG_ statements that could not be parsed; 0 after VexilClearData. */
VEXIL64_API uint64_t VexilGetNumCanErrors(void);

/* Copies a parse error to the caller.
 *
 * Parameters:
 *   errorIndex  0 to VexilGetNumCanErrors() - 1, in the order of the file.
 *   record      receives the parse error; null is an error.
 * Returns:
 *   1  The record was filled.
 *   0  The index is out of range or the record is null. The record is unchanged.
 * Notes:
 *   "line" is the number of the line before the one with the next keyword. That is the line of the
 *   statement when both are on adjoining lines. Blank lines after the statement make it larger. For
 *   the last statement of a file it is the number of lines - 1, so it can be 0.
 *   "text" begins with the keyword and lacks the last byte of the statement. The statement reaches
 *   up to the next keyword, so the text can contain line feeds, also at its end. */
VEXIL64_API uint8_t VexilGetErrorData(uint32_t errorIndex, ParseError* record);

/* -- Writing --------------------------------------------------------------------------------- */

/* Writes the database to a DBC file.
 *
 * Parameters:
 *   path            path of the file, UTF-8; null counts as empty. An existing file is emptied as
 *                   soon as it is opened.
 *   pathBufferSize  size of the buffer of path in bytes, with the NUL; at most 260.
 *   order           order of the messages: an Order constant. The order in the database stays.
 *   resultCode      receives the result code in all cases; must not be null.
 * Returns:
 *   1  The file was written. With StateStreamError, writing the last line failed.
 *   0  There is no message, or the file could not be opened or written; see "Outcomes of a write".
 * Notes:
 *   Close errors are not reported. Each line was given to the system by then. */
VEXIL64_API uint8_t VexilWriteDbcFile(const char* path, uint32_t pathBufferSize, uint32_t order,
                                      uint32_t* resultCode);

#ifdef __cplusplus
} /* extern "C" */
#endif

/* The layout is part of the contract, so every compiler checks each size and offset. C and C++98
 * use an array of negative size, since neither has a static assertion before C11 and C++11. */
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
