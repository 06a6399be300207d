// The end of an object: checks for missing members, and adds the record to the database.
// SPDX-License-Identifier: MIT
#include "document/network_reader.h"

namespace vexil::tool {
namespace {

// Whether an object has a member.
bool Sees(Shape shape, FieldSet seen, std::string_view name) {
    const std::span<const Member> members = MembersOf(shape);
    for (std::size_t row = 0; row < members.size(); ++row) {
        if (members[row].name == name) {
            return ((seen >> row) & 1U) != 0;
        }
    }
    return false;
}

// The members that are fields of the record.
FieldSet GivenFields(Shape shape, FieldSet seen) {
    FieldSet fields = 0;
    for (const Member& member : MembersOf(shape)) {
        fields = member.kind == MemberKind::Field ? (fields << 1U) | 1U : fields;
    }
    return seen & fields;
}

}  // namespace

void NetworkReader::Finish(Frame& object) {
    switch (object.shape) {
        case Shape::Description:
            FinishDescription(object);
            break;
        case Shape::Signal:
            FinishSignal(object);
            break;
        case Shape::Message:
            FinishMessage(object);
            break;
        case Shape::Document:
            Require(object, "messages");
            NetworkBuilder::SetInfo(info);
            break;
        case Shape::Info:
            break;
    }
}

void NetworkReader::FinishDescription(Frame& object) {
    Require(object, "value");
    if (!object.isRefused) {
        signal.descriptions.push_back(
            {frames.back().index, description.value, std::string(std::begin(description.text))});
    }
}

void NetworkReader::FinishSignal(Frame& object) {
    RequireName(object);
    Require(object, "startBit");
    Require(object, "bitLength");
    if (!object.isRefused && message.signals.size() == MaxSignalsPerMessage) {
        Refuse({}, "a message takes " + std::to_string(MaxSignalsPerMessage) + " signals");
    } else if (!object.isRefused) {
        signal.given = GivenFields(object.shape, object.seen);
        message.signals.push_back(std::move(signal));
    }
}

void NetworkReader::FinishMessage(Frame& object) {
    Require(object, "id");
    RequireName(object);
    if (!object.isRefused) {
        message.given = GivenFields(object.shape, object.seen);
        builder.Add(message);
    }
}

void NetworkReader::Require(Frame& object, std::string_view name) {
    if (!Sees(object.shape, object.seen, name)) {
        Refuse(name, "is missing");
        object.isRefused = true;
    }
}

// Signals and messages may have their name in either field. A file with an unnamed message
// could not be read again.
void NetworkReader::RequireName(Frame& object) {
    const bool hasLongName = Sees(object.shape, object.seen, "longName");
    if (!hasLongName && !Sees(object.shape, object.seen, "name")) {
        Require(object, "longName");
    } else if (object.shape == Shape::Message && !object.isRefused &&
               (hasLongName ? message.record.longName[0] : message.record.name[0]) == '\0') {
        Refuse(hasLongName ? "longName" : "name", "a message needs a name");
        object.isRefused = true;
    }
}

}  // namespace vexil::tool
