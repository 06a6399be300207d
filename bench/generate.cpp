// Generates databases from words. Uses its own pseudo-random numbers, because the distributions of
// the standard library differ between implementations.
// SPDX-License-Identifier: MIT
#include "generate.h"

#include <array>
#include <string_view>
#include <utility>

namespace vexil::bench {
namespace {

constexpr std::size_t SignalsPerMessage = 8;
constexpr std::size_t WideMessageSize = 2600;  // approximate size of a message of WideDatabase
constexpr std::size_t Nodes = 20;

constexpr std::array<std::string_view, 16> Words = {
    "engine", "speed",   "torque", "brake",    "pressure", "valve", "of",    "the",
    "wheel",  "voltage", "level",  "measured", "filtered", "fault", "state", "temperature"};

// A linear congruential generator.
class Random {
  public:
    std::uint32_t Below(std::uint32_t limit) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>(state >> 33) % limit;
    }

  private:
    std::uint64_t state = 1;
};

std::string Number(std::uint64_t number) {
    return std::to_string(number);
}

std::string MessageName(std::size_t id) {
    return std::string("Message_").append(Number(id));
}

std::string SignalName(std::size_t index) {
    return std::string("Signal_").append(Number(index));
}

std::string NodeName(std::size_t index) {
    return std::string("Node_").append(Number(index));
}

std::string Quoted(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

// A wide database under construction. Each section is a separate text.
class WideText {
  public:
    explicit WideText(std::size_t messages) {
        for (std::size_t id = 1; id <= messages; ++id) {
            AddMessage(id);
        }
        database.messages = messages;
    }

    Database Take() {
        database.text = "VERSION \"\"\n\nNS_ :\n\nBS_:\n\nBU_:";
        for (std::size_t node = 0; node < Nodes; ++node) {
            database.text.append(" ").append(NodeName(node));
        }
        database.text.append("\n\n")
            .append(messageLines)
            .append(comments)
            .append(
                "BA_DEF_ \"BusType\" STRING ;\n"
                "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
                "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"Event\",\"IfActive\",\"None\";\n"
                "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\n"
                "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 65535;\n"
                "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;\n"
                "BA_DEF_DEF_ \"BusType\" \"CAN\";\n"
                "BA_DEF_DEF_ \"GenMsgCycleTime\" 100;\n"
                "BA_DEF_DEF_ \"GenMsgSendType\" \"None\";\n"
                "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";\n"
                "BA_DEF_DEF_ \"GenSigStartValue\" 0;\n"
                "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"\";\n"
                "BA_ \"BusType\" \"CAN FD\";\n");
        database.text.append(attributes).append(values).append(valueTypes);
        return std::move(database);
    }

  private:
    // Returns words separated by blanks, with about this many bytes altogether.
    std::string Text(std::size_t size) {
        std::string text;
        while (text.size() < size) {
            text.append(text.empty() ? "" : " ")
                .append(Words[random.Below(static_cast<std::uint32_t>(Words.size()))]);
        }
        return text;
    }

    void AddMessage(std::size_t id) {
        const std::string number = Number(id);
        messageLines.append("BO_ ").append(number).append(" ").append(MessageName(id));
        messageLines.append(": 64 ").append(NodeName(random.Below(Nodes))).append("\n");
        comments.append("CM_ BO_ ").append(number).append(" \"").append(Text(90)).append("\";\n");
        AddAttribute("GenMsgCycleTime", "BO_", number, Number(10 * random.Below(100)));
        AddAttribute("GenMsgSendType", "BO_", number, Number(random.Below(4)));
        AddAttribute("Marrowby_Msg_Name", "BO_", number, Quoted(Text(40)));
        for (std::size_t index = 0; index < SignalsPerMessage; ++index) {
            AddSignal(number, index);
        }
        messageLines.append("\n");
    }

    void AddSignal(const std::string& id, std::size_t index) {
        const std::string name = SignalName(index);
        messageLines.append(" SG_ ").append(name).append(" : ").append(Number(32 * index));
        messageLines.append(index % 2 == 0 ? "|16@1+ (0.125,-40)" : "|32@1- (1,0)");
        messageLines.append(" [0|").append(Number(random.Below(100000))).append(".5] \"km/h\"  ");
        messageLines.append(NodeName(random.Below(Nodes)))
            .append(",")
            .append(NodeName(random.Below(Nodes)));
        messageLines.append("\n");
        const std::string owner = id + " " + name;
        comments.append("CM_ SG_ ").append(owner).append(" \"").append(Text(50)).append("\";\n");
        AddAttribute("GenSigStartValue", "SG_", owner, Number(random.Below(65536)));
        if (index == 0) {
            AddAttribute("Marrowby_Sig_Name", "SG_", owner, Quoted(Text(40)));
        }
        if (index == SignalsPerMessage - 1) {
            valueTypes.append("SIG_VALTYPE_ ").append(owner).append(" : 1;\n");
        } else {
            AddValues(owner);
        }
        ++database.signals;
    }

    void AddValues(const std::string& owner) {
        constexpr std::uint32_t Count = 3;
        values.append("VAL_ ").append(owner);
        for (std::uint32_t value = 0; value < Count; ++value) {
            values.append(" ").append(Number(value)).append(" \"").append(Text(8)).append("\"");
        }
        values.append(" ;\n");
        database.enums += Count;
    }

    void AddAttribute(std::string_view name, std::string_view kind, std::string_view owner,
                      std::string_view value) {
        attributes.append("BA_ \"").append(name).append("\" ").append(kind).append(" ");
        attributes.append(owner).append(" ").append(value).append(";\n");
    }

    Random random;
    Database database;
    std::string messageLines;
    std::string comments;
    std::string attributes;
    std::string values;
    std::string valueTypes;
};

std::string PlainSignal(std::string_view name) {
    return std::string(" SG_ ").append(name).append(
        " : 0|16@1+ (0.5,0) [0|32767.5] \"rpm\"  Node_1\n");
}

}  // namespace

Database WideDatabase(std::size_t size) {
    return WideText(size / WideMessageSize).Take();
}

Database TallDatabase(std::size_t signals) {
    Database database{"BO_ 1 Tall: 64 Node_0\n", 1, signals, signals};
    std::string rest = "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 65535;\n";
    for (std::size_t index = 0; index < signals; ++index) {
        const std::string owner = std::string("1 ").append(SignalName(index));
        database.text.append(PlainSignal(SignalName(index)));
        rest.append("CM_ SG_ ").append(owner).append(" \"the speed of the engine\";\n");
        rest.append("VAL_ ").append(owner).append(" 65535 \"not available\" ;\n");
        rest.append("BA_ \"GenSigStartValue\" SG_ ").append(owner).append(" 7;\n");
    }
    database.text.append("\n").append(rest);
    return database;
}

Database NamesDatabase(std::size_t signals) {
    Database database{"BO_ 1 Names: 64 Node_0\n", 1, signals};
    for (std::size_t index = 0; index < signals; ++index) {
        database.text.append(PlainSignal("Speed"));
    }
    return database;
}

}  // namespace vexil::bench
