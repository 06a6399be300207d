// Hostile inputs: files that would make an inefficient reader or writer slow. A shape makes an
// input of any size.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vexil::growth {

// A file and what a read of it must give.
struct Input {
    std::string text;
    std::uint64_t messages = 0;
    std::uint64_t signals = 0;  // of all messages
    std::uint64_t enums = 0;    // of all signals
    std::uint64_t errors = 0;
};

inline constexpr std::size_t KiB = 1024;
inline constexpr std::size_t MiB = 1024 * KiB;

enum class Phase { Read, FirstDescriptions, Fetch, Write };

// What a cost is proportional to.
enum class Unit {
    InputByte,
    FetchedRecord,           // the messages, signals, value descriptions and errors of a full fetch
    WrittenByte,             // of the output, and of the input
    InputByteToThreeHalves,  // the size of the input to the power of 1.5
    InputByteSquared,
};

// The limit of a phase whose cost grows faster than the input. SECURITY.md lists them.
struct Bound {
    Phase phase;
    Unit unit;
    double maxSteps;            // for each unit
    double maxMemory = 0;       // bytes for each unit; 0: the limit of all other inputs
    std::size_t largest = MiB;  // input for which the phase is measured
};

struct Shape {
    std::string name;
    std::function<Input(std::size_t size)> make;  // an input of about that many bytes
    std::vector<Bound> bounds = {};               // of the phases that are not linear
};

// Long lines, hostile bytes and many statements without effect.
std::vector<Shape> LineShapes();

// Long fields of one statement.
std::vector<Shape> FieldShapes();

// Comments, value types and value descriptions for few and for many owners.
std::vector<Shape> OwnerShapes();

// Value descriptions that owners share, and names that are prefixes of one another.
std::vector<Shape> DescriptionShapes();

// Attribute definitions, defaults and values.
std::vector<Shape> AttributeShapes();

// Messages and signals that are work for the writer.
std::vector<Shape> WriterShapes();

std::vector<Shape> AllShapes();

// Names and ids that collide under the library's own hash. Apart from the others, since a program
// of them needs hash_key.cpp.
std::vector<Shape> KnownKeyShapes();

}  // namespace vexil::growth
