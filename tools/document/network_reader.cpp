// The objects and lists that have begun, and the values that are refused.
// SPDX-License-Identifier: MIT
#include "document/network_reader.h"

#include <algorithm>

#include "document/json_text.h"

namespace vexil::tool {
namespace {

// Documents have five levels and the account some more. The limit keeps a hostile document from
// taking memory by its depth.
constexpr std::size_t DeepestNesting = 64;

std::string InBrackets(std::string_view text) {
    std::string step = "[";
    step += text;
    step += ']';
    return step;
}

// Returns the name of a member as a part of a path, in quotes if it has characters that no field
// has.
std::string Step(std::string_view name) {
    constexpr std::size_t Longest = 60;
    const auto isPlain = [](char ch) {
        return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9') ||
               ch == '_';
    };
    if (!name.empty() && name.size() <= Longest && std::all_of(name.begin(), name.end(), isPlain)) {
        return std::string(1, '.').append(name);
    }
    return InBrackets(JsonExcerpt(name));
}

std::string_view Needed(MemberKind kind) {
    switch (kind) {
        case MemberKind::Object:
            return "an object is needed";
        case MemberKind::List:
            return "a list is needed";
        default:
            return "a number or a text is needed, neither an object nor a list";
    }
}

}  // namespace

NetworkReader::NetworkReader(DocumentResult& documentResult)
    : result(documentResult), builder(documentResult) {}

bool NetworkReader::Key(std::string_view name) {
    if (skipped > 0) {
        return true;
    }
    Frame& object = frames.back();
    const std::span<const Member> members = MembersOf(object.shape);
    const auto found = std::find_if(members.begin(), members.end(),
                                    [name](const Member& each) { return each.name == name; });
    object.member = nullptr;
    object.isNamed = true;
    object.name = name;
    if (found == members.end()) {
        Refuse({}, "there is no such field");
        return true;
    }
    const FieldSet bit = FieldSet{1} << static_cast<unsigned>(found - members.begin());
    if ((object.seen & bit) != 0) {
        RefuseRecord("the object has this field twice");
        return true;
    }
    object.seen |= bit;
    if (found->kind == MemberKind::Cut) {
        object.name.clear();
        object.isNamed = false;
        RemarkOnCut();
        return true;
    }
    object.member = &*found;
    return true;
}

bool NetworkReader::Scalar(const JsonScalar& scalar) {
    if (skipped > 0) {
        return true;
    }
    if (frames.empty() || frames.back().isList) {
        RefuseRecord(Needed(MemberKind::Object));
        Leave();
        return true;
    }
    if (const Member* const member = frames.back().member; member != nullptr) {
        Accept(*member, scalar);
    }
    return true;
}

void NetworkReader::Accept(const Member& member, const JsonScalar& scalar) {
    std::string wrong;
    switch (member.kind) {
        case MemberKind::Field:
            wrong = StoreScalar(*member.field, RecordOf(frames.back().shape), scalar);
            break;
        case MemberKind::Version:
            wrong = CheckFormat(scalar);
            break;
        case MemberKind::Object:
        case MemberKind::List:
            wrong = Needed(member.kind);
            break;
        case MemberKind::Cut:
        case MemberKind::Ignored:
            break;
    }
    if (!wrong.empty()) {
        RefuseRecord(wrong);
    }
}

void* NetworkReader::RecordOf(Shape shape) {
    switch (shape) {
        case Shape::Message:
            return &message.record;
        case Shape::Signal:
            return &signal.record;
        case Shape::Description:
            return &description;
        default:
            return &info;
    }
}

bool NetworkReader::BeginObject() {
    return Begin(false);
}

bool NetworkReader::BeginList() {
    return Begin(true);
}

bool NetworkReader::Begin(bool isList) {
    if (IsTooDeep()) {
        return false;
    }
    if (skipped > 0) {
        ++skipped;
        return true;
    }
    if (frames.empty() || frames.back().isList) {
        if (!isList) {
            Open(frames.empty() ? Shape::Document : frames.back().shape, false);
            return true;
        }
        RefuseRecord(Needed(MemberKind::Object));
        ++skipped;
        return true;
    }
    const Member* const member = frames.back().member;
    const MemberKind kind = member == nullptr ? MemberKind::Ignored : member->kind;
    if (kind == (isList ? MemberKind::List : MemberKind::Object)) {
        Open(member->shape, isList);
        return true;
    }
    if (kind != MemberKind::Ignored) {
        RefuseRecord(Needed(kind));
    }
    ++skipped;
    return true;
}

bool NetworkReader::IsTooDeep() {
    if (frames.size() + skipped < DeepestNesting) {
        return false;
    }
    const std::string path = Path();
    result.fault = (path.empty() ? "the document" : path) +
                   ": objects and lists are inside one another more than " +
                   std::to_string(DeepestNesting) + " deep";
    return true;
}

void NetworkReader::Open(Shape shape, bool isList) {
    const DocumentIndex index = frames.empty() ? 0 : frames.back().index;
    frames.push_back({shape, isList});
    if (isList) {
        return;
    }
    switch (shape) {
        case Shape::Message:
            message = MessageDraft();
            message.index = index;
            break;
        case Shape::Signal:
            signal = SignalDraft();
            signal.index = index;
            break;
        case Shape::Description:
            description = {};
            break;
        default:
            break;
    }
}

bool NetworkReader::EndObject() {
    if (skipped > 0) {
        --skipped;
    } else {
        Frame object = std::move(frames.back());
        frames.pop_back();
        Finish(object);
    }
    Leave();
    return true;
}

bool NetworkReader::EndList() {
    if (skipped > 0) {
        --skipped;
    } else {
        frames.pop_back();
    }
    Leave();
    return true;
}

// A value has ended; in a list the next one follows.
void NetworkReader::Leave() {
    if (skipped == 0 && !frames.empty() && frames.back().isList) {
        ++frames.back().index;
    }
}

void NetworkReader::Refuse(std::string_view member, std::string_view text) {
    if (result.refused.HasRoom()) {
        result.refused.Add(Path(member), std::string(text));
    } else {
        result.refused.AddUnseen();
    }
}

void NetworkReader::RemarkOnCut() {
    if (result.cut.HasRoom()) {
        result.cut.Add(Path(), "the texts that its member cut names");
    } else {
        result.cut.AddUnseen();
    }
}

void NetworkReader::RefuseRecord(std::string_view text) {
    Refuse({}, text);
    // Only the wrong element of a list is left out; the object around the list stays.
    if (!frames.empty() && !frames.back().isList) {
        frames.back().isRefused = true;
        frames.back().member = nullptr;
    }
}

std::string NetworkReader::Path(std::string_view member) const {
    std::string path;
    for (const Frame& each : frames) {
        if (each.isList) {
            path += InBrackets(std::to_string(each.index));
        } else if (each.isNamed) {
            path += Step(each.name);
        }
    }
    if (!member.empty()) {
        path += Step(member);
    }
    return path.starts_with('.') ? path.substr(1) : path;
}

}  // namespace vexil::tool
