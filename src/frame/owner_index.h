// OwnerIndex, the messages and signals read so far, by message id and name. Comments, value
// descriptions and value types apply to every message of their id and every signal of their name.
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
    std::uint32_t earlier = 0;  // the position of the owner before it, plus one; 0 for the first
    // Valid only in the newest owner of a key: the ends of the lists that all of them share.
    Note* lastComment = nullptr;
    Note* lastStatement = nullptr;
    // Whether a SIG_VALTYPE_ statement for this size came after the owner.
    bool sawFloat32 = false;
    bool sawFloat64 = false;
};

class OwnerIndex {
  public:
    // Precondition: messages and signals do not move until Clear.
    void AddMessage(CANMessage& message);
    void AddSignal(std::uint32_t messageId, CANSignal& signal);

    // Return the newest message of the id, or the newest signal of the id and rawName; null when
    // there is none.
    Owner* FindMessage(std::uint32_t messageId);
    Owner* FindSignal(std::uint32_t messageId, std::string_view name);

    // Calls visit(owner, end) for each signal name with which text begins and which white space
    // follows; end is the length of the name. Precondition: text does not begin with white space.
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

    // Add the text to the newest owner of a key and all earlier ones. Precondition: the text is in
    // the arena.
    void AddComment(Arena& arena, Owner& newest, std::string_view text);
    void AddStatement(Arena& arena, Owner& newest, std::string_view text);

    // Sets the value type to float for the newest owner of a key and all earlier ones, if they have
    // this number of bits, 32 or 64.
    void MakeFloat(Owner& newest, std::uint32_t bits);

    // Removes all owners and frees the memory.
    void Clear();

  private:
    // The entry in index for the newest owner of a key, or null.
    std::uint32_t* PlaceOfMessage(std::uint32_t messageId, std::size_t hash);
    std::uint32_t* PlaceOfSignal(std::uint32_t messageId, std::string_view name, std::size_t hash);

    // Adds an owner. place: the entry of its key in index, or null for a new key.
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
    HashIndex index;            // the newest owner of each key
    std::size_t mostWords = 1;  // the most words in a signal name
};

}  // namespace vexil
