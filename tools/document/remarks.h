// Remarks on values of a document, each with the path of its value.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexil::tool {

struct Remark {
    std::string path;  // such as messages[3].signals[1].bitLength; empty for the whole document
    std::string text;

    bool operator==(const Remark&) const = default;
};

// Remarks of one kind. Any number is counted, but a hostile document must not fill the memory, so
// only the first ones are held.
class Remarks {
  public:
    explicit Remarks(std::size_t mostHeld) : most(mostHeld) {}

    // Whether the next remark would be held. If not, its text need not be composed.
    bool HasRoom() const { return held.size() < most; }

    void Add(std::string path, std::string text) {
        ++count;
        if (HasRoom()) {
            held.push_back({std::move(path), std::move(text)});
        }
    }

    void AddUnseen() { ++count; }

    std::size_t Count() const { return count; }
    const std::vector<Remark>& Held() const { return held; }

  private:
    std::size_t most;
    std::size_t count = 0;
    std::vector<Remark> held;
};

// The result of reading a document.
struct DocumentResult {
    explicit DocumentResult(std::size_t mostChanges)
        : mostChangesOfAField(mostChanges), cut(mostChanges) {}

    // Returns the remarks on a field whose value differs between database and document.
    Remarks& ChangesOf(const std::string& field) {
        return changed.try_emplace(field, mostChangesOfAField).first->second;
    }

    static constexpr std::size_t MostRefused = 1000;

    std::string fault;  // where and why the text is not JSON; empty if it is
    Remarks refused = Remarks(MostRefused);
    std::size_t mostChangesOfAField;
    std::map<std::string, Remarks> changed;  // by field, such as messages[].cycleTime
    Remarks cut;  // the objects with texts that were cut before they came into the document

    // In the database.
    std::size_t messages = 0;
    std::size_t signals = 0;
    std::size_t descriptions = 0;
};

}  // namespace vexil::tool
