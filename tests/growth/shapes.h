// Inputs that are meant to make a careless reader or writer slow. Each shape makes an input of any
// size.
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

struct Shape {
    std::string name;
    std::function<Input(std::size_t size)> make;  // an input of about that many bytes
    std::size_t largest = 2 * MiB;                // the largest size that is tried
    // Whether what comes out may be far longer than what goes in, so that the read alone is held to
    // the size of the input.
    bool isReadAlone = false;
};

// Long lines, hostile bytes and many statements without effect.
std::vector<Shape> LineShapes();

// Long fields of one statement.
std::vector<Shape> FieldShapes();

// Comments, value types and value descriptions for few and for many owners.
std::vector<Shape> OwnerShapes();

// Attribute definitions, defaults and values.
std::vector<Shape> AttributeShapes();

// Messages and signals that are work for the writer.
std::vector<Shape> WriterShapes();

std::vector<Shape> AllShapes();

}  // namespace vexil::growth
