// Choosing the run that has the name of its area.
// SPDX-License-Identifier: MIT
#include "view/frame_labels.h"

#include <algorithm>
#include <set>
#include <utility>

#include "format/format.h"
#include "view/display_text.h"

namespace vexil::tool {
namespace {

constexpr std::size_t Padding = 2;  // a blank at both sides

}  // namespace

std::size_t InnerWidth(const BitRun& run, std::size_t bitWidth) {
    return run.length * bitWidth + run.length - 1;
}

std::string FrameLabels::NameOf(std::uint32_t signal) const {
    return Printable(database.Text(database.signals[signal].name));
}

// A signal of one bit needs no number.
std::string FrameLabels::BitsOf(const BitRun& run) const {
    if (run.owner.signalCount != 1 || database.signals[run.owner.signal].bitLength == 1) {
        return "";
    }
    return run.highBit == run.lowBit ? Format("{}", run.highBit)
                                     : Format("{}..{}", run.highBit, run.lowBit);
}

std::string FrameLabels::KeyOf(const BitOwner& owner) {
    const auto [entry, isNew] = keys.try_emplace(owner);
    if (isNew) {
        overlapCount += owner.IsOverlap() ? 1 : 0;
        entry->second = owner.IsOverlap() ? Format("!{}", overlapCount)
                                          : Format("({})", keys.size() - overlapCount);
    }
    return entry->second;
}

std::string FrameLabels::Explain(const BitOwner& owner) const {
    if (!owner.IsOverlap()) {
        return NameOf(owner.signal);
    }
    constexpr std::uint32_t Named = 2;
    return owner.signalCount == Named
               ? Format("{} and {} overlap", NameOf(owner.signal), NameOf(owner.other))
               : Format("{}, {} and {} more overlap", NameOf(owner.signal), NameOf(owner.other),
                        owner.signalCount - Named);
}

std::size_t FrameLabels::NeededBitWidth(const FrameRuns& frame) const {
    std::size_t needed = 1;
    for (const std::vector<std::size_t>& area : frame.areas) {
        if (frame.runs[area.front()].owner.signalCount != 1) {
            continue;
        }
        std::size_t least = std::string::npos;
        for (const std::size_t index : area) {
            const BitRun& run = frame.runs[index];
            const std::size_t bits = BitsOf(run).size();
            const std::size_t label =
                NameOf(run.owner.signal).size() + (bits == 0 ? 0 : bits + 1) + Padding;
            const std::size_t borders = run.length - 1;
            least = std::min(least, (label - std::min(label, borders) + borders) / run.length);
        }
        needed = std::max(needed, least);
    }
    return needed;
}

std::optional<std::size_t> FrameLabels::FindRunForName(const FrameRuns& frame,
                                                       const std::vector<std::size_t>& area,
                                                       std::size_t bitWidth) const {
    const std::size_t name = NameOf(frame.runs[area.front()].owner.signal).size();
    for (const bool withBits : {true, false}) {
        for (const std::size_t index : area) {
            const std::size_t bits = BitsOf(frame.runs[index]).size();
            if (name + (withBits && bits != 0 ? bits + 1 : 0) <=
                InnerWidth(frame.runs[index], bitWidth)) {
                return index;
            }
        }
    }
    return std::nullopt;
}

std::vector<RunLabel> FrameLabels::Label(const FrameRuns& frame, std::size_t bitWidth) {
    std::vector<RunLabel> labels(frame.runs.size());
    std::set<BitOwner> explained;
    legend.clear();
    for (const std::vector<std::size_t>& area : frame.areas) {
        const BitOwner& owner = frame.runs[area.front()].owner;
        if (owner.IsFree()) {
            continue;
        }
        const std::optional<std::size_t> place =
            owner.IsOverlap() ? std::nullopt : FindRunForName(frame, area, bitWidth);
        if (place) {
            labels[*place].name = NameOf(owner.signal);
        } else {
            const std::string key = KeyOf(owner);
            labels[area.front()].name = key;
            if (explained.insert(owner).second) {
                legend.push_back(key + " " + Explain(owner));
            }
        }
    }
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const std::size_t name = labels[index].name.size();
        std::string bits = BitsOf(frame.runs[index]);
        if (bits.size() + (name == 0 ? 0 : name + 1) <= InnerWidth(frame.runs[index], bitWidth)) {
            labels[index].bits = std::move(bits);
        }
    }
    return labels;
}

}  // namespace vexil::tool
