// What the areas of a drawn frame are labelled with: names where they fit, keys of a legend
// elsewhere.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "database/snapshot.h"
#include "view/frame_runs.h"

namespace vexil::tool {

// The text in a run.
struct RunLabel {
    std::string name;  // to the left: a name or a key
    std::string bits;  // to the right: which bits of the signal
};

// The columns inside a run whose bits take so many columns each, with a border between them.
std::size_t InnerWidth(const BitRun& run, std::size_t bitWidth);

// Makes the labels of one frame after the other. A signal has the same key in all of them.
class FrameLabels {
  public:
    explicit FrameLabels(const Snapshot& snapshot) : database(snapshot) {}

    // Returns how many columns a bit must take for all names and bit numbers to fit.
    std::size_t NeededBitWidth(const FrameRuns& frame) const;

    // Returns the labels of the runs, in their order.
    std::vector<RunLabel> Label(const FrameRuns& frame, std::size_t bitWidth);

    // Returns the keys of the last frame, each with its signals.
    const std::vector<std::string>& Legend() const { return legend; }

  private:
    std::string NameOf(std::uint32_t signal) const;
    std::string BitsOf(const BitRun& run) const;
    std::string KeyOf(const BitOwner& owner);

    // Returns the first run of an area with room for the name of its signal and for the bits, else
    // the first one with room for the name, else nothing.
    std::optional<std::size_t> FindRunForName(const FrameRuns& frame,
                                              const std::vector<std::size_t>& area,
                                              std::size_t bitWidth) const;

    std::string Explain(const BitOwner& owner) const;

    const Snapshot& database;
    std::map<BitOwner, std::string> keys;
    std::size_t overlapCount = 0;
    std::vector<std::string> legend;
};

}  // namespace vexil::tool
