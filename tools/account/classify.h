// What a statement of one kind comes to, and the functions that classify each kind. Each takes the
// text that the library handled, from the keyword to the next one, and what the database holds.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "account/cause.h"
#include "account/owners.h"
#include "database/snapshot.h"

namespace vexil::tool {

struct Outcome {
    Cause cause = Cause::Kept;
    std::string detail;
};

// A statement that refers to a message or signal which has not been read yet. It is classified at
// the end, when it is known whether the file has it further on.
struct Reference {
    std::uint32_t statement = 0;
    std::uint32_t id = 0;
    std::string_view signal;
};

// What comments and descriptions have come together so far, by index into the snapshot.
struct Collected {
    explicit Collected(const Snapshot& snapshot)
        : messageComments(snapshot.messages.size()),
          signalComments(snapshot.signals.size()),
          descriptions(snapshot.signals.size()),
          floats(snapshot.signals.size()) {}

    std::vector<std::uint32_t> messageComments;  // bytes
    std::vector<std::uint32_t> signalComments;   // bytes
    std::vector<std::uint32_t> descriptions;     // pairs
    std::vector<bool> floats;                    // made one by a SIG_VALTYPE_ statement
};

// What these functions share.
struct ReadContext {
    const Snapshot& snapshot;
    Owners owners;
    Collected collected;
    std::vector<Reference> references;
    std::uint32_t statement = 0;  // the one that is being classified
};

// A BO_ statement that was kept. Sets the name as it is written.
Outcome ClassifyMessage(std::string_view text, const Snapshot& snapshot, const MessageFacts& facts,
                        std::string_view& name);

// An SG_ statement that was kept.
Outcome ClassifySignal(std::string_view text, const Snapshot& snapshot, const SignalFacts& facts,
                       std::string_view& name);

// A CM_ statement. The text of its author ends at a position.
Outcome ClassifyComment(std::string_view text, std::size_t authorEnd, ReadContext& context);

// A VAL_ statement.
Outcome ClassifyDescriptions(std::string_view text, ReadContext& context);

// A SIG_VALTYPE_ statement.
Outcome ClassifyValueType(std::string_view text, ReadContext& context);

// A statement that refers to an owner which was not among those that had been read.
Outcome ClassifyMissingOwner(const Reference& reference, const Owners& owners);

}  // namespace vexil::tool
