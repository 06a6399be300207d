// vexil64 for C++17 and later - reads and writes DBC files with ranges, exceptions and
// std::string_view. A header-only layer on the functions of vexil64.h; link the same library.
// SPDX-License-Identifier: MIT
//
// Conventions
//
//  1. One database. This header has no state. Every function works on the one database that the
//     library has for the process, so there is no class for a network. Calls must not overlap.
//  2. Items. A Message, Signal, Description or StatementError holds a copy of its record, which
//     later calls do not change. It also holds its indexes, which are valid until the next read or
//     clear.
//  3. Ranges. messages(), errors(), Message::signals() and Signal::descriptions() return input
//     ranges, in C++20 also views. An iterator fetches one item at a time, and a reference to the
//     item is valid until the iterator is incremented. Copy an item to keep it.
//  4. Text. UTF-8 throughout. A returned std::string_view points into the item, so the functions
//     that return one do not compile on a temporary item. Text arguments must not contain a NUL.
//  5. Errors. Failures are exceptions:
//     - Error: a file could not be read or written. try_read and try_write return a Result instead.
//     - FrameError: a value could not be decoded or encoded.
//     - std::invalid_argument: an argument is refused before the library is called.
//     - std::out_of_range: an index is not in the database.
//     - std::length_error: a message cannot take another signal.
//     - std::bad_alloc: out of memory. See convention 10 of vexil64.h.
#ifndef VEXIL64_HPP
#define VEXIL64_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#if __has_include(<version>)
#include <version>
#endif
#ifdef __cpp_lib_ranges
#include <ranges>
#endif

#include "vexil64.h"
#include "vexil64_frame.h"

// Names have the style of the standard library, because range-based for loops and algorithms need
// some of them, such as begin and value_type.
// NOLINTBEGIN(readability-identifier-naming)
namespace vexil64 {

// -- Errors --

// A file that could not be read or written.
class Error : public std::runtime_error {
  public:
    Error(const std::string& what, std::uint32_t code) : std::runtime_error(what), m_code(code) {}

    // The result code, a State constant.
    std::uint32_t code() const noexcept { return m_code; }

  private:
    std::uint32_t m_code;
};

// A value that could not be decoded or encoded.
class FrameError : public std::runtime_error {
  public:
    FrameError(const std::string& what, VexilFrameResult result)
        : std::runtime_error(what), m_result(result) {}

    VexilFrameResult result() const noexcept { return m_result; }

  private:
    VexilFrameResult m_result;
};

// The outcome of a read or write; converts to true for success.
struct Result {
    bool success;
    std::uint32_t code;  // the result code, a State constant

    explicit operator bool() const noexcept { return success; }
};

// -- Text arguments --

// A text argument. The constructor throws std::invalid_argument for a null pointer.
class Text {
  public:
    // Implicit, so that a function with a Text parameter takes any of these types.
    Text(const char* text) : m_view(text ? text : throw std::invalid_argument("a text is null")) {}
    Text(const std::string& text) : m_view(text) {}
    Text(std::string_view text) : m_view(text) {}
    Text(std::nullptr_t) = delete;

    std::string_view view() const noexcept { return m_view; }

  private:
    std::string_view m_view;
};

namespace detail {

// Returns the number of bytes of the first UTF-8 character of a text, or 0 if it is not valid.
// Precondition: the text is not empty.
inline std::size_t character_size(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
        return 1;
    }
    const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < size) {
        return 0;
    }
    // The second byte shows overlong forms, surrogates and code points above 0x10FFFF.
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (byte(1) < lowest || byte(1) > highest) {
        return 0;
    }
    for (std::size_t i = 2; i < size; ++i) {
        if (byte(i) < 0x80 || byte(i) > 0xBF) {
            return 0;
        }
    }
    return size;
}

inline bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t size = character_size(text);
        if (size == 0) {
            return false;
        }
        text.remove_prefix(size);
    }
    return true;
}

// Copies a text into an array of a record and fills the rest with zeros. Throws
// std::invalid_argument, with the name of the field, for a text that is too long or not valid.
template <std::size_t Size>
void store(char (&array)[Size], const char* field, Text text) {
    const std::string_view view = text.view();
    const auto refuse = [&](const std::string& reason) {
        throw std::invalid_argument(std::string(field) + ": " + reason);
    };
    if (view.size() >= Size) {
        refuse(std::to_string(view.size()) + " bytes, at most " + std::to_string(Size - 1));
    }
    if (view.find('\0') != std::string_view::npos) {
        refuse("contains a NUL");
    }
    if (!is_utf8(view)) {
        refuse("is not valid UTF-8");
    }
    std::fill(std::begin(array), std::end(array), '\0');
    view.copy(array, Size);
}

// Returns the text in an array of a record, up to its NUL.
template <std::size_t Size>
std::string_view load(const char (&array)[Size]) {
    const char* const end = std::find(std::begin(array), std::end(array), '\0');
    return {array, static_cast<std::size_t>(end - array)};
}

// Calls a function of the library that takes a path.
template <typename Call>
Result call_with_path(Text path, const Call& call) {
    const std::string buffer(path.view());
    // The size counts the NUL. Every size above the maximum gives the same result code.
    const std::size_t size = std::min<std::size_t>(buffer.size() + 1, MaxPathBufferSize + 1);
    Result result = {false, StatePathInvalid};
    if (buffer.find('\0') == std::string::npos) {
        result.success = call(buffer.c_str(), static_cast<std::uint32_t>(size), &result.code) != 0;
    }
    return result;
}

inline const char* reason(std::uint32_t code) {
    switch (code) {
        case StateClosed:
            return "there is no message to write";
        case StatePathTooLong:
            return "the path is longer than 259 bytes";
        case StatePathInvalid:
            return "the path is not valid UTF-8, or contains a NUL";
        case StatePathEmpty:
            return "the path is empty";
        case StateOpenFailed:
            return "the system could not open the file";
        default:
            return "reading or writing failed";
    }
}

[[noreturn]] inline void fail(const char* action, Text path, std::uint32_t code) {
    throw Error("cannot " + std::string(action) + " \"" + std::string(path.view()) +
                    "\": " + reason(code) + " (result code " + std::to_string(code) + ")",
                code);
}

}  // namespace detail

// -- Ranges --

// The items of one owner, such as the signals of a message. A type Item has these members:
//   Owner                the indexes of the owner in the database
//   fetch(owner, index)  returns an item, or nothing for an out-of-range index
//   count(owner)         returns the number of items, 0 if the owner is not in the database
template <typename Item>
class Range {
  public:
    using Owner = typename Item::Owner;

    class iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Item;
        using difference_type = std::ptrdiff_t;
        using pointer = const Item*;
        using reference = const Item&;

        iterator() = default;
        explicit iterator(Owner owner) : m_owner(owner), m_item(Item::fetch(owner, 0)) {}

        reference operator*() const { return *m_item; }
        pointer operator->() const { return &*m_item; }
        iterator& operator++() {
            m_item = Item::fetch(m_owner, ++m_index);
            return *this;
        }
        iterator operator++(int) {
            iterator before = *this;
            ++*this;
            return before;
        }
        // Precondition: both iterators belong to the same range.
        friend bool operator==(const iterator& a, const iterator& b) {
            return a.m_item.has_value() == b.m_item.has_value() &&
                   (!a.m_item || a.m_index == b.m_index);
        }
        friend bool operator!=(const iterator& a, const iterator& b) { return !(a == b); }

      private:
        Owner m_owner = {};
        std::uint32_t m_index = 0;
        std::optional<Item> m_item;
    };
    using const_iterator = iterator;

    Range() = default;
    explicit Range(Owner owner) : m_owner(owner) {}

    iterator begin() const { return iterator(m_owner); }
    iterator end() const { return {}; }
    std::size_t size() const { return Item::count(m_owner); }
    bool empty() const { return size() == 0; }

    // Returns a copy of one item. Throws std::out_of_range for an out-of-range index.
    Item at(std::uint32_t index) const {
        std::optional<Item> item = Item::fetch(m_owner, index);
        if (!item) {
            throw std::out_of_range("there is no item " + std::to_string(index));
        }
        return *std::move(item);
    }

  private:
    Owner m_owner = {};
};

// -- Items --

// A value description of a signal.
class Description {
  public:
    struct Owner {
        std::uint32_t message;
        std::uint32_t signal;
    };

    static std::optional<Description> fetch(Owner owner, std::uint32_t index) {
        Description description;
        if (!VexilGetCanSignalEnumData(owner.message, owner.signal, index, &description.m_record)) {
            return std::nullopt;
        }
        return description;
    }
    static std::size_t count(Owner owner) {
        std::uint32_t count = 0;
        VexilGetNumEnumsInCanSignal(owner.message, owner.signal, &count);
        return count;
    }

    const CanEnumRecord& record() const& { return m_record; }
    const CanEnumRecord& record() const&& = delete;

    std::int32_t value() const { return m_record.value; }  // raw value
    std::string_view text() const& { return detail::load(m_record.text); }
    std::string_view text() const&& = delete;

  private:
    CanEnumRecord m_record = {};
};

// A signal of a message.
class Signal {
  public:
    struct Owner {
        std::uint32_t message;
    };

    static std::optional<Signal> fetch(Owner owner, std::uint32_t index) {
        Signal signal;
        signal.m_position = {owner.message, index};
        if (!VexilGetCanSignalData(owner.message, index, &signal.m_record)) {
            return std::nullopt;
        }
        return signal;
    }
    static std::size_t count(Owner owner) {
        std::uint32_t count = 0;
        VexilGetNumCanSignalsInCanMessage(owner.message, &count);
        return count;
    }

    // The indexes of the signal, for the functions of vexil64.h.
    std::uint32_t message_index() const { return m_position.message; }
    std::uint32_t index() const { return m_position.signal; }

    const CanSignalRecord& record() const& { return m_record; }
    const CanSignalRecord& record() const&& = delete;

    // The texts of CanSignalRecord. unit() is unitUtf8; record().unit is the unit in ASCII. The
    // comment has a backslash before each double quote.
    std::string_view name() const& { return detail::load(m_record.name); }
    std::string_view name() const&& = delete;
    std::string_view long_name() const& { return detail::load(m_record.longName); }
    std::string_view long_name() const&& = delete;
    std::string_view unit() const& { return detail::load(m_record.unitUtf8); }
    std::string_view unit() const&& = delete;
    std::string_view receivers() const& { return detail::load(m_record.receiverList); }
    std::string_view receivers() const&& = delete;
    std::string_view comment() const& { return detail::load(m_record.comment); }
    std::string_view comment() const&& = delete;

    // The numbers of CanSignalRecord.
    std::uint32_t multiplex_type() const { return m_record.multiplexType; }
    std::uint32_t multiplex_value() const { return m_record.multiplexValue; }
    std::uint32_t start_bit() const { return m_record.startBit; }
    std::uint32_t bit_length() const { return m_record.bitLength; }
    std::uint32_t byte_order() const { return m_record.byteOrder; }
    std::uint32_t value_type() const { return m_record.valueType; }
    double factor() const { return m_record.factor; }
    double offset() const { return m_record.offset; }
    double minimum() const { return m_record.minimum; }
    double maximum() const { return m_record.maximum; }
    std::int32_t start_value() const { return m_record.startValue; }
    std::int32_t inactive_value() const { return m_record.inactiveValue; }

    Range<Description> descriptions() const { return Range<Description>(m_position); }

  private:
    CanSignalRecord m_record = {};
    Description::Owner m_position = {};
};

// A message.
class Message {
  public:
    struct Owner {};

    static std::optional<Message> fetch(Owner /*database*/, std::uint32_t index) {
        Message message;
        message.m_index = index;
        if (!VexilGetCanMessageData(index, &message.m_record)) {
            return std::nullopt;
        }
        return message;
    }
    static std::size_t count(Owner /*database*/) { return VexilGetNumCanMessages(); }

    // The index of the message, for the functions of vexil64.h.
    std::uint32_t index() const { return m_index; }

    const CanMessageRecord& record() const& { return m_record; }
    const CanMessageRecord& record() const&& = delete;

    // The texts of CanMessageRecord. The comment has a backslash before each double quote.
    std::string_view name() const& { return detail::load(m_record.name); }
    std::string_view name() const&& = delete;
    std::string_view long_name() const& { return detail::load(m_record.longName); }
    std::string_view long_name() const&& = delete;
    std::string_view transmitter() const& { return detail::load(m_record.transmitter); }
    std::string_view transmitter() const&& = delete;
    std::string_view comment() const& { return detail::load(m_record.comment); }
    std::string_view comment() const&& = delete;
    std::string_view send_type() const& { return detail::load(m_record.sendType); }
    std::string_view send_type() const&& = delete;

    // id() is the id of the record, in which bit 31 is set for extended ids. frame_id() is the id
    // without this bit.
    std::uint32_t id() const { return m_record.id; }
    std::uint32_t frame_id() const { return m_record.id & 0x7FFFFFFFU; }
    bool is_extended() const { return m_record.id >> 31U != 0; }
    std::uint32_t dlc() const { return m_record.dlc; }  // payload size in bytes
    std::int32_t cycle_time() const { return m_record.cycleTime; }

    Range<Signal> signals() const { return Range<Signal>(Signal::Owner{m_index}); }

    // Returns the first multiplexer of the message, if there is one.
    std::optional<Signal> selector() const {
        for (const Signal& signal : signals()) {
            if (signal.multiplex_type() == MultiplexSelector) {
                return signal;
            }
        }
        return std::nullopt;
    }

  private:
    CanMessageRecord m_record = {};
    std::uint32_t m_index = 0;
};

// A BO_ or SG_ statement that the last read refused. See ParseError for line and text.
class StatementError {
  public:
    struct Owner {};

    static std::optional<StatementError> fetch(Owner /*database*/, std::uint32_t index) {
        StatementError error;
        if (!VexilGetErrorData(index, &error.m_record)) {
            return std::nullopt;
        }
        return error;
    }
    static std::size_t count(Owner /*database*/) { return VexilGetNumCanErrors(); }

    const ParseError& record() const& { return m_record; }
    const ParseError& record() const&& = delete;

    std::uint32_t code() const { return m_record.code; }  // a Step constant
    std::uint32_t line() const { return m_record.line; }
    std::string_view text() const& { return detail::load(m_record.text); }
    std::string_view text() const&& = delete;
    // The first line of text(), without its line end.
    std::string_view first_line() const& { return text().substr(0, text().find_first_of("\r\n")); }
    std::string_view first_line() const&& = delete;

  private:
    ParseError m_record = {};
};

// -- The database --

// Returns all messages, in the order of reading and appending.
inline Range<Message> messages() {
    return {};
}

// Returns the statements that the last read refused, in the order of the file.
inline Range<StatementError> errors() {
    return {};
}

// Returns the first message with an id, if there is one. Takes linear time in the number of
// messages.
inline std::optional<Message> find_message(std::uint32_t id) {
    for (const Message& message : messages()) {
        if (message.id() == id) {
            return message;
        }
    }
    return std::nullopt;
}

// Returns the first signal of a message whose name() is the argument, if there is one.
inline std::optional<Signal> find_signal(const Message& message, Text name) {
    for (const Signal& signal : message.signals()) {
        if (signal.name() == name.view()) {
            return signal;
        }
    }
    return std::nullopt;
}

// Removes all messages and parse errors. DatabaseInfo::busType keeps its value.
inline void clear() {
    VexilClearData();
}

// Clears the database and reads a file into it.
//
// Returns:
//   The outcome. A path that contains a NUL gives StatePathInvalid.
inline Result try_read(Text path) {
    clear();
    return detail::call_with_path(path, [](const char* buffer, auto size, auto* code) {
        return VexilReadDbcFile(buffer, size, code);
    });
}

// Clears the database and reads a file into it.
//
// Returns:
//   The statements that were refused.
// Throws:
//   Error  The file could not be opened or read. With StateStreamError, the database has what was
//          read before the failure; with any other code it is empty.
inline Range<StatementError> read(Text path) {
    if (const Result result = try_read(path); !result) {
        detail::fail("read", path, result.code);
    }
    return errors();
}

// Writes the database to a file.
//
// Parameters:
//   path   the path of the file, which is emptied as soon as it is opened.
//   order  order of the messages: an Order constant.
// Returns:
//   The outcome. If the database has no message, the write fails with StateClosed and no file is
//   touched.
// Notes:
//   Signals of one message that share a name are renamed, see VexilWriteDbcFile.
inline Result try_write(Text path, std::uint32_t order = OrderAsStored) {
    Result result =
        detail::call_with_path(path, [order](const char* buffer, auto size, auto* code) {
            return VexilWriteDbcFile(buffer, size, order, code);
        });
    // If only the last line could not be written, the call succeeds with StateStreamError.
    result.success = result.success && result.code == StateClosed;
    return result;
}

// Writes the database to a file, as try_write does. Throws Error if the write fails.
inline void write(Text path, std::uint32_t order = OrderAsStored) {
    if (const Result result = try_write(path, order); !result) {
        detail::fail("write", path, result.code);
    }
}

// Returns the protocol and the bus type.
inline DatabaseInfo info() {
    DatabaseInfo info = {};
    VexilGetDatabaseInfo(&info, sizeof info);
    return info;
}

// Sets the protocol and the bus type. The values are not checked.
inline void set_info(const DatabaseInfo& info) {
    VexilSetDatabaseInfo(&info, sizeof info);
}

// Returns the version of the library.
inline float version() {
    return VexilGetLibraryVersion();
}

// -- Appending --

// A message to append. Functions that take a text throw std::invalid_argument if the text is too
// long for its field, is not valid UTF-8 or contains a NUL.
class NewMessage {
  public:
    NewMessage(std::uint32_t id, Text longName) {
        m_record.id = id;
        detail::store(m_record.longName, "long name of a message", longName);
    }
    NewMessage& dlc(std::uint32_t bytes) {
        m_record.dlc = bytes;
        return *this;
    }
    NewMessage& transmitter(Text node) {
        detail::store(m_record.transmitter, "transmitter", node);
        return *this;
    }
    NewMessage& comment(Text text) {
        detail::store(m_record.comment, "comment of a message", text);
        return *this;
    }
    const CanMessageRecord& record() const { return m_record; }

  private:
    CanMessageRecord m_record = {};
};

// A signal to append. By default it is a little-endian unsigned signal of one bit at bit 0, with
// factor 1 and offset 0. Functions that take a text throw as those of NewMessage do.
class NewSignal {
  public:
    explicit NewSignal(Text longName) {
        m_record.bitLength = 1;
        m_record.byteOrder = ByteOrderLittleEndian;
        m_record.factor = 1;
        detail::store(m_record.longName, "long name of a signal", longName);
    }
    NewSignal& little_endian(std::uint32_t startBit, std::uint32_t bitLength) {
        return layout(startBit, bitLength, ByteOrderLittleEndian);
    }
    NewSignal& big_endian(std::uint32_t startBit, std::uint32_t bitLength) {
        return layout(startBit, bitLength, ByteOrderBigEndian);
    }
    // Takes a Value constant. ValueFloat32 needs 32 bits and ValueFloat64 needs 64.
    NewSignal& value_type(std::uint32_t type) {
        m_record.valueType = type;
        return *this;
    }
    NewSignal& scale(double factor, double offset = 0) {
        m_record.factor = factor;
        m_record.offset = offset;
        return *this;
    }
    NewSignal& limits(double minimum, double maximum) {
        m_record.minimum = minimum;
        m_record.maximum = maximum;
        return *this;
    }
    // Makes the signal the multiplexer of its message.
    NewSignal& multiplexer() {
        m_record.multiplexType = MultiplexSelector;
        return *this;
    }
    // Makes the signal present in frames in which the multiplexer has this value.
    NewSignal& multiplexed(std::uint32_t value) {
        m_record.multiplexType = MultiplexSelected;
        m_record.multiplexValue = value;
        return *this;
    }
    NewSignal& unit(Text text) {
        detail::store(m_record.unit, "unit", text);
        return *this;
    }
    // Takes the names of the receiving nodes, separated by commas.
    NewSignal& receivers(Text nodes) {
        detail::store(m_record.receiverList, "receivers", nodes);
        return *this;
    }
    NewSignal& comment(Text text) {
        detail::store(m_record.comment, "comment of a signal", text);
        return *this;
    }
    NewSignal& start_value(std::int32_t value) {
        m_record.startValue = value;
        return *this;
    }
    NewSignal& inactive_value(std::int32_t value) {
        m_record.inactiveValue = value;
        return *this;
    }
    const CanSignalRecord& record() const { return m_record; }

  private:
    NewSignal& layout(std::uint32_t startBit, std::uint32_t bitLength, std::uint32_t byteOrder) {
        m_record.startBit = startBit;
        m_record.bitLength = bitLength;
        m_record.byteOrder = byteOrder;
        return *this;
    }

    CanSignalRecord m_record = {};
};

// Adds a message without signals at the end of the database and returns it.
inline Message append(const NewMessage& message) {
    const auto index = static_cast<std::uint32_t>(VexilGetNumCanMessages());
    VexilAppendCanMessage(&message.record());
    return messages().at(index);
}

// Adds a signal at the end of a message and returns it.
//
// Throws:
//   std::invalid_argument  A ValueFloat32 signal has not 32 bits or a ValueFloat64 not 64 bits.
//   std::out_of_range      The message is not in the database.
//   std::length_error      The message already has MaxSignalsPerMessage signals.
inline Signal append(const Message& message, const NewSignal& signal) {
    const CanSignalRecord& record = signal.record();
    if ((record.valueType == ValueFloat32 && record.bitLength != 32) ||
        (record.valueType == ValueFloat64 && record.bitLength != 64)) {
        throw std::invalid_argument("a floating-point signal of " +
                                    std::to_string(record.bitLength) + " bits");
    }
    const std::size_t count = message.signals().size();
    if (count == MaxSignalsPerMessage) {
        throw std::length_error("the message has " + std::to_string(count) + " signals already");
    }
    if (!VexilAppendCanSignalToCanMessage(message.index(), &record)) {
        throw std::out_of_range("there is no message " + std::to_string(message.index()));
    }
    return message.signals().at(static_cast<std::uint32_t>(count));
}

// Adds a value description to a signal. If the value already has a description, the text is added
// to it after " - ".
//
// Throws:
//   std::invalid_argument  The text is too long, is not valid UTF-8 or contains a NUL.
//   std::out_of_range      The signal is not in the database.
inline void append(const Signal& signal, std::int32_t value, Text text) {
    CanEnumRecord record = {};
    record.value = value;
    detail::store(record.text, "value description", text);
    if (!VexilAppendEnumToCanSignal(signal.message_index(), signal.index(), &record)) {
        throw std::out_of_range("there is no signal " + std::to_string(signal.index()) +
                                " in message " + std::to_string(signal.message_index()));
    }
}

// -- Frames --

namespace detail {

inline void check(VexilFrameResult result, const Signal& signal) {
    if (result != FrameOk) {
        throw FrameError(std::string(signal.name()) + ": " + VexilFrameResultText(result), result);
    }
}

}  // namespace detail

// A Frame is any type with elements of std::uint8_t that std::data and std::size take, such as
// std::vector, std::array and C arrays. vexil64_frame.h has the rules of values.

// Returns the physical value of a signal in a frame. Throws FrameError. Treats every signal as
// present: see is_present.
template <typename Frame>
double decode(const Signal& signal, const Frame& frame) {
    double value = 0;
    detail::check(VexilDecodeValue(&signal.record(), std::data(frame), std::size(frame), &value),
                  signal);
    return value;
}

// Encodes a physical value, rounded to the nearest raw value, into a frame. Throws FrameError; the
// frame is unchanged then.
template <typename Frame>
void encode(const Signal& signal, double value, Frame& frame) {
    detail::check(VexilEncodeValue(&signal.record(), value, std::data(frame), std::size(frame)),
                  signal);
}

// Returns whether a signal is present in a frame. Throws FrameError if the multiplexer is missing
// or cannot be decoded.
//
// Parameters:
//   selector  the multiplexer of the same message, from Message::selector().
template <typename Frame>
bool is_present(const Signal& signal, const std::optional<Signal>& selector, const Frame& frame) {
    const VexilFrameResult result =
        VexilCheckPresence(&signal.record(), selector ? &selector->record() : nullptr,
                           std::data(frame), std::size(frame));
    if (result != FrameNotPresent) {
        detail::check(result, signal);
    }
    return result == FrameOk;
}

}  // namespace vexil64
// NOLINTEND(readability-identifier-naming)

#ifdef __cpp_lib_ranges
// A range holds only the indexes of its owner, and its iterators do not refer to it.
template <typename Item>
inline constexpr bool std::ranges::enable_view<vexil64::Range<Item>> = true;
template <typename Item>
inline constexpr bool std::ranges::enable_borrowed_range<vexil64::Range<Item>> = true;
#endif

#endif  // VEXIL64_HPP
