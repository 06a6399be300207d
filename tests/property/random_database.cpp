// Random databases, put into the library through its public header.
// SPDX-License-Identifier: MIT
#include "property/random_database.h"

#include <bit>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string_view>

#include "property/append_rules.h"
#include "property/text_rules.h"

namespace vexil::test {
namespace {

constexpr auto Pieces =
    Texts("a", "b", "Speed", "Temp", "rpm", "km/h", " ", " ", " ", "  ", ",", ";", ";\n", "\"",
          "\"", "\\", "\\\"", "\n", "\n ", "\t", "\r", "\v", "\f", "\x01", "\x1B", "\x7F",
          "\xC2\xB0", "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x99\x82", "0", "7", "12", "-", ":", "|",
          "@", "(", ")", "[", "]", "m", "M", "m1", "BO_", "SG_ ", " VAL_ ", " CM_\n", "BA_DEF_ ",
          "B\x01O_ ", "_0000", "x", "abcdefgh");

constexpr auto NamePieces = Texts("A", "B", "a", "M", "m", "m1", "m3", "m1a", "Mode", "T");

constexpr std::string_view LongNameEnds[] = {"", "x", "y", "_0000", "_0001", "xxxxx", "xxxxxxxx"};

constexpr double Numbers[] = {0,      -0.0,       1,          -1,          0.1,
                              -40,    0.5,        6553.5,     1e-5,        1.0 / 3,
                              1e10,   9999999999, 1234567.8,  12345678901, 0.30000000000000004,
                              1e-300, -1e300,     4294967295, 1e100};

constexpr double EdgeNumbers[] = {std::numeric_limits<double>::max(),
                                  -std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::min(),
                                  std::numeric_limits<double>::denorm_min(),
                                  1e-310,
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN()};

constexpr std::uint32_t Words[] = {0, 1, 2, 3, 4, 7, 8, 16, 32, 64, 255, 2147483647, 4294967295};

void Append(bool accepted) {
    if (!accepted) {
        throw std::runtime_error("a record was not accepted");
    }
}

template <std::size_t Size>
void Store(char (&array)[Size], const std::string& text) {
    std::memcpy(array, text.c_str(), text.size() + 1);
}

class DatabaseMaker {
  public:
    explicit DatabaseMaker(Random& randomNumbers) : random(randomNumbers) {}

    Model Make() {
        model.info = {random.Below(4), random.Below(3)};
        VexilSetDatabaseInfo(&model.info, sizeof model.info);
        for (std::uint32_t count = 1 + random.Below(6); count != 0; --count) {
            AddMessage();
        }
        return model;
    }

  private:
    // At most size bytes of pieces, cut at a character.
    std::string Text(std::uint32_t maxPieces, std::size_t size) {
        std::string text;
        for (std::uint32_t count = random.Below(maxPieces + 1); count != 0; --count) {
            text += random.Of(Pieces);
        }
        return CutText(text, size);
    }

    // A text that is cut nowhere else when it is read back from a place where any keyword cuts.
    std::string TextWithoutKeywords(std::uint32_t maxPieces, std::size_t size) {
        for (;;) {
            std::string text = Text(maxPieces, size);
            if (!HoldsKeyword(text)) {
                return text;
            }
        }
    }

    std::string Comment() {
        for (;;) {
            std::string comment = random.OneIn(3) ? "" : Text(random.OneIn(8) ? 80 : 10, 255);
            if (!HoldsKeywordBehindItsFirstLine(comment)) {
                return comment;
            }
        }
    }

    // Few names, so that messages have duplicates: plain ones, texts, or long ones that differ only
    // where a suffix cuts them.
    std::string LongName() {
        if (random.OneIn(12)) {
            return "";
        }
        if (random.OneIn(4)) {
            return Text(6, 255);
        }
        if (isOfLongNames) {
            return std::string(27, 'L') + std::string(random.Of(LongNameEnds));
        }
        std::string name(random.Of(NamePieces));
        name += random.OneIn(6) ? "_0000" : "";
        name += random.OneIn(6) ? "_0001" : "";
        return name;
    }

    std::string NameWithoutKeywords() {
        for (;;) {
            std::string name = LongName();
            if (!IsKeyword(IdentifierOf(name))) {
                return name;
            }
        }
    }

    std::string Node() {
        for (;;) {
            std::string node = random.OneIn(3) ? "" : Text(3, 32);
            if (!IsKeyword(IdentifierOf(node))) {
                return node;
            }
        }
    }

    std::string ReceiverList() {
        std::string list = random.OneIn(4) ? "" : Node();
        while (random.OneIn(2)) {
            list += ',' + Node();
        }
        list = CutText(list, 255);
        for (const std::string& receiver : ReceiversOf(list)) {
            if (IsKeyword(receiver)) {
                return "";
            }
        }
        return list;
    }

    double Number() {
        if (random.OneIn(60)) {
            return random.Of(EdgeNumbers);
        }
        if (random.OneIn(8)) {
            return static_cast<double>(random.Word()) / 1000 - 2e6;
        }
        if (random.OneIn(30)) {
            return std::bit_cast<double>(std::uint64_t{random.Word()} << 32 | random.Word());
        }
        return random.Of(Numbers);
    }

    std::uint32_t Word() { return random.OneIn(8) ? random.Word() : random.Of(Words); }

    void AddMessage() {
        CanMessageRecord record{};
        const std::string longName = LongName();
        const std::string transmitter = Node();
        const std::string comment = Comment();
        record.id = random.OneIn(3) ? random.Of(Words) : 100 + random.Below(1000);
        record.dlc = Word();
        Store(record.name, "ignored");
        Store(record.longName, longName);
        Store(record.transmitter, transmitter);
        Store(record.comment, comment);
        record.cycleTime = 5;
        Append(VexilAppendCanMessage(&record) == 1);

        ModelMessage message;
        Append(AppendedMessage(record, message));
        model.messages.push_back(message);
        isOfLongNames = random.OneIn(5);
        for (std::uint32_t count = random.Below(8); count != 0; --count) {
            AddSignal();
        }
    }

    void AddSignal() {
        CanSignalRecord record{};
        const std::string longName = NameWithoutKeywords();
        const std::string unit = TextWithoutKeywords(4, 32);
        const std::string receiverList = ReceiverList();
        const std::string comment = Comment();
        Store(record.name, "ignored");
        Store(record.longName, longName);
        Store(record.unit, unit);
        Store(record.receiverList, receiverList);
        Store(record.comment, comment);
        record.multiplexType = random.OneIn(2) ? 0 : random.Below(4);
        record.multiplexValue = Word();
        record.startBit = Word();
        record.bitLength = Word();
        record.byteOrder = random.OneIn(8) ? Word() : random.Below(2);
        record.valueType = random.OneIn(8) ? Word() : random.Below(4);
        record.factor = Number();
        record.offset = Number();
        record.minimum = Number();
        record.maximum = Number();
        record.startValue = std::bit_cast<std::int32_t>(Word());
        record.inactiveValue = std::bit_cast<std::int32_t>(Word());
        const auto messageIndex = static_cast<std::uint32_t>(model.messages.size() - 1);
        Append(VexilAppendCanSignalToCanMessage(messageIndex, &record) == 1);

        ModelSignal signal;
        Append(AppendedSignal(record, signal));
        model.messages.back().signals.push_back(signal);
        if (random.OneIn(3)) {
            AddDescriptions(messageIndex);
        }
    }

    // Mostly a few; now and then so many that they pass the limit of a statement, on one line.
    void AddDescriptions(std::uint32_t messageIndex) {
        std::map<std::int32_t, std::string>& enums = model.messages.back().signals.back().enums;
        const auto signalIndex =
            static_cast<std::uint32_t>(model.messages.back().signals.size() - 1);
        const bool isLong = random.OneIn(40);
        for (std::uint32_t count = isLong ? 400 : 1 + random.Below(6); count != 0; --count) {
            CanEnumRecord record{};
            record.value = isLong || random.OneIn(4) ? std::bit_cast<std::int32_t>(Word())
                                                     : static_cast<std::int32_t>(random.Below(4));
            std::string text = isLong ? "plain" : Text(random.OneIn(8) ? 20 : 4, 255);
            const auto former = enums.find(record.value);
            const std::string joined = former == enums.end() ? text : former->second + " - " + text;
            if (HoldsKeyword(joined)) {
                continue;
            }
            Store(record.text, text);
            Append(VexilAppendEnumToCanSignal(messageIndex, signalIndex, &record) == 1);
            Append(AppendedDescription(record, enums));
        }
    }

    Random& random;
    Model model;
    bool isOfLongNames = false;
};

}  // namespace

Model AppendRandomDatabase(Random& random) {
    return DatabaseMaker(random).Make();
}

}  // namespace vexil::test
