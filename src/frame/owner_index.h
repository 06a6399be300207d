// OwnerIndex, the messages and signals read so far, by message id and name. Comments, value
// descriptions and value types reach every message of their id and every signal of their name.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "frame/can_message.h"
#include "text/arena.h"
#include "text/arena_list.h"
#include "text/char_class.h"
#include "text/constants.h"
#include "text/hash_index.h"
#include "text/keyed_hash.h"

namespace vexil {

// One message or signal, in the list of those that share its key.
struct Owner {
    CANSignal* signal = nullptr;  // null for a message
    Notes* notes = nullptr;       // of the message or signal
    std::uint32_t messageId = 0;
    std::uint32_t earlier = 0;  // the position of the one before it, plus one; 0 for the first
    // What the newest owner of a key knows for all of them.
    Note* lastComment = nullptr;
    Note* lastStatement = nullptr;
    // Whether it has seen a statement that makes floats of the size.
    bool sawFloat32 = false;
    bool sawFloat64 = false;
};

class OwnerIndex {
  public:
    // Messages and signals must stay where they are until Clear.
    void AddMessage(CANMessage& message);
    void AddSignal(std::uint32_t messageId, CANSignal& signal);

    // Return the newest message of the id, or the newest signal of the id and rawName; null when
    // there is none.
    Owner* FindMessage(std::uint32_t messageId);
    Owner* FindSignal(std::uint32_t messageId, std::string_view name);

    // Calls visit(owner, end) for each name of a signal that text begins with and that white space
    // follows; end is its length. Precondition: text begins with no white space.
    template <typename Visit>
    void ForEachSignalAt(std::uint32_t messageId, std::string_view text, Visit visit) {
        PrefixHash hash(messageId, text);
        Position end = FindSpace(text, 0);
        for (std::size_t words = 1; end != npos && words <= mostWords; ++words) {
            const std::uint32_t* place =
                PlaceOfSignal(messageId, text.substr(0, end), hash.UpTo(end));
            if (place != nullptr) {
                visit(*At(place), end);
            }
            end = FindSpace(text, FindNonSpace(text, end));
        }
    }

    // Give the text, which is the arena's, to the newest owner of a key and all before it. So each
    // owner has the notes from its first one on, whoever shares them.
    void AddComment(Arena& arena, Owner& newest, std::string_view text);
    void AddStatement(Arena& arena, Owner& newest, std::string_view text);

    // Makes floats of those signals that have the number of bits, 32 or 64: the newest owner of a
    // key and all before it.
    void MakeFloat(Owner& newest, std::uint32_t bits);

    // Forgets all owners and gives the memory back.
    void Clear();

  private:
    // The place in index of the newest owner of a key, or null.
    std::uint32_t* PlaceOfMessage(std::uint32_t messageId, std::size_t hash);
    std::uint32_t* PlaceOfSignal(std::uint32_t messageId, std::string_view name, std::size_t hash);

    // Adds an owner whose key has the place, or is new where that is null.
    void Add(Owner owner, std::size_t hash, std::uint32_t* place);

    Owner* At(const std::uint32_t* place) { return place == nullptr ? nullptr : &owners[*place]; }
    Owner* EarlierThan(const Owner& owner) {
        return owner.earlier == 0 ? nullptr : &owners[owner.earlier - 1];
    }

    // Appends a note to the list that begins with first and ends with last.
    void Append(Arena& arena, Owner& newest, std::string_view text, Note* Notes::*first,
                Note* Owner::*last);

    Arena memory;
    PagedList<Owner> owners;
    HashIndex index;            // of the newest owner of each key
    std::size_t mostWords = 1;  // in the name of a signal
};

}  // namespace vexil
