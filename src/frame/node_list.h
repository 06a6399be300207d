// NodeList, the names of nodes in one text.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vexil {

// Names in the order in which they were added, with commas between them, as a record and a file
// have them. A name is an identifier, so it has no comma of its own.
class NodeList {
  public:
    NodeList() = default;
    NodeList(std::initializer_list<std::string_view> names) {
        std::for_each(names.begin(), names.end(), [this](std::string_view name) { Add(name); });
    }

    // REQUIRES: name is not empty.
    void Add(std::string_view name) { joined.append(joined.empty() ? "" : ",").append(name); }

    bool IsEmpty() const { return joined.empty(); }
    void Clear() { joined.clear(); }

    // The names with commas and no blanks between them; empty when there is none.
    const std::string& Joined() const { return joined; }

    // Calls visit(name) for each name.
    template <typename Visit>
    void ForEach(Visit visit) const {
        for (std::string_view rest = joined; !rest.empty();) {
            const std::size_t comma = std::min(rest.find(','), rest.size());
            visit(rest.substr(0, comma));
            rest.remove_prefix(std::min(comma + 1, rest.size()));
        }
    }

    bool operator==(const NodeList&) const = default;

  private:
    std::string joined;
};

}  // namespace vexil
