// Functions that determine the outcome of a statement, one for each kind. Each takes the statement
// that the library cut, from its keyword to the next one, and the snapshot of the database.
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

// A statement that refers to a message or signal that has not been read yet. It is classified at
// the end, when it is known whether the file defines the owner later.
struct Reference {
    std::uint32_t statement = 0;
    std::uint32_t id = 0;
    std::string_view signal;
};

// The comments and descriptions collected so far, by index into the snapshot.
struct Collected {
    explicit Collected(const Snapshot& snapshot)
        : messageComments(snapshot.messages.size()),
          signalComments(snapshot.signals.size()),
          descriptions(snapshot.signals.size()),
          floats(snapshot.signals.size()) {}

    std::vector<std::uint32_t> messageComments;  // bytes
    std::vector<std::uint32_t> signalComments;   // bytes
    std::vector<std::uint32_t> descriptions;     // pairs
    std::vector<bool> floats;                    // signals with a SIG_VALTYPE_ statement
};

// The state that these functions share.
struct ReadContext {
    const Snapshot& snapshot;
    Owners owners;
    Collected collected;
    std::vector<Reference> references;
    std::uint32_t statement = 0;  // the statement to classify
};

// A BO_ statement that was kept. Sets the name to that in the statement.
Outcome ClassifyMessage(std::string_view text, const Snapshot& snapshot, const MessageFacts& facts,
                        std::string_view& name);

// An SG_ statement that was kept.
Outcome ClassifySignal(std::string_view text, const Snapshot& snapshot, const SignalFacts& facts,
                       std::string_view& name);

// A CM_ statement, with the position at which its text ends for the author.
Outcome ClassifyComment(std::string_view text, std::size_t authorEnd, ReadContext& context);

// A VAL_ statement.
Outcome ClassifyDescriptions(std::string_view text, ReadContext& context);

// A SIG_VALTYPE_ statement.
Outcome ClassifyValueType(std::string_view text, ReadContext& context);

// A statement whose owner had not been read before it.
Outcome ClassifyMissingOwner(const Reference& reference, const Owners& owners);

}  // namespace vexil::tool
