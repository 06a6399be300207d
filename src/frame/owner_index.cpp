// OwnerIndex: adding and finding owners, and adding notes to all owners of a key.
// SPDX-License-Identifier: MIT
#include "frame/owner_index.h"

#include <algorithm>

namespace vexil {
namespace {

// Ids have 32 bits, so a message and a signal without a name have different keys.
std::size_t HashOfMessage(std::uint32_t messageId) {
    return KeyedHash(std::uint64_t{messageId} << 32U, {});
}

std::size_t CountWords(std::string_view text) {
    std::size_t count = 0;
    for (Position at = FindNonSpace(text, 0); at != npos; at = FindNonSpace(text, at)) {
        ++count;
        at = FindSpace(text, at);
    }
    return count;
}

}  // namespace

void OwnerIndex::AddMessage(CANMessage& message) {
    Owner owner;
    owner.notes = &message.notes;
    owner.messageId = message.id;
    const std::size_t hash = HashOfMessage(message.id);
    Add(owner, hash, PlaceOfMessage(message.id, hash));
}

void OwnerIndex::AddSignal(std::uint32_t messageId, CANSignal& signal) {
    Owner owner;
    owner.signal = &signal;
    owner.notes = &signal.notes;
    owner.messageId = messageId;
    const std::size_t hash = KeyedHash(messageId, signal.rawName);
    Add(owner, hash, PlaceOfSignal(messageId, signal.rawName, hash));
    if (signal.rawName != signal.name) {  // an identifier has one word
        mostWords = std::max(mostWords, CountWords(signal.rawName));
    }
}

Owner* OwnerIndex::FindMessage(std::uint32_t messageId) {
    return At(PlaceOfMessage(messageId, HashOfMessage(messageId)));
}

Owner* OwnerIndex::FindSignal(std::uint32_t messageId, std::string_view name) {
    return At(PlaceOfSignal(messageId, name, KeyedHash(messageId, name)));
}

void OwnerIndex::AddComment(Arena& arena, Owner& newest, std::string_view text) {
    Append(arena, newest, text, &Notes::comments, &Owner::lastComment);
}

void OwnerIndex::AddStatement(Arena& arena, Owner& newest, std::string_view text) {
    Append(arena, newest, text, &Notes::statements, &Owner::lastStatement);
}

void OwnerIndex::MakeFloat(Owner& newest, std::uint32_t bits) {
    bool Owner::*const saw = bits == 32 ? &Owner::sawFloat32 : &Owner::sawFloat64;
    // If an owner has seen such a statement, all earlier owners have seen it.
    for (Owner* owner = &newest; owner != nullptr && !(owner->*saw); owner = EarlierThan(*owner)) {
        owner->*saw = true;
        if (owner->signal->bitLength == bits) {
            owner->signal->valueType = bits == 32 ? ValueFloat32 : ValueFloat64;
        }
    }
}

void OwnerIndex::Clear() {
    owners.Clear();
    index.Clear();
    memory.Release();
    mostWords = 1;
}

std::uint32_t* OwnerIndex::PlaceOfMessage(std::uint32_t messageId, std::size_t hash) {
    return index.Find(hash, [&](std::uint32_t position) {
        const Owner& owner = owners[position];
        return owner.messageId == messageId && owner.signal == nullptr;
    });
}

std::uint32_t* OwnerIndex::PlaceOfSignal(std::uint32_t messageId, std::string_view name,
                                         std::size_t hash) {
    return index.Find(hash, [&](std::uint32_t position) {
        const Owner& owner = owners[position];
        return owner.messageId == messageId && owner.signal != nullptr &&
               owner.signal->rawName == name;
    });
}

void OwnerIndex::Add(Owner owner, std::size_t hash, std::uint32_t* place) {
    const std::size_t position = owners.Size();
    if (place == nullptr) {
        owners.Add(memory, owner);
        index.Add(hash, position);
        return;
    }
    const Owner& earlier = owners[*place];
    owner.earlier = *place + 1;
    owner.lastComment = earlier.lastComment;
    owner.lastStatement = earlier.lastStatement;
    owners.Add(memory, owner);
    *place = static_cast<std::uint32_t>(position);
}

void OwnerIndex::Append(Arena& arena, Owner& newest, std::string_view text, Note* Notes::*first,
                        Note* Owner::*last) {
    Note* const note = arena.New<Note>(text);
    if (newest.*last != nullptr) {
        (newest.*last)->next = note;
    }
    newest.*last = note;
    // Owners that were added after the last note have no first note yet.
    for (Owner* owner = &newest; owner != nullptr && owner->notes->*first == nullptr;
         owner = EarlierThan(*owner)) {
        owner->notes->*first = note;
    }
}

}  // namespace vexil
