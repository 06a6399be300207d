// A host that makes the calls of an input, and maintains a model of the expected database.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "any_path.h"
#include "byte_source.h"
#include "property/model.h"

namespace vexil::fuzz {

class Host {
  public:
    // Starts from an empty database. The arguments of calls come from input.
    explicit Host(ByteSource& byteSource);

    // Makes the call of this letter, if a function has it.
    void Call(char function);

    // Reads a file of these bytes.
    void ReadFile(std::string_view bytes);

    // The expected content of the database.
    const test::Model& Held() const { return model; }

  private:
    // From the model; null if the index is out of range.
    test::ModelMessage* MessageAt(std::uint32_t index);
    test::ModelSignal* SignalAt(std::uint32_t messageIndex, std::uint32_t index);

    void Clear();
    void GetInfo();
    void SetInfo();
    void GetMessage();
    void CountSignals();
    void GetSignal();
    void CountEnums();
    void GetEnum();
    void GetError();
    void AppendMessage();
    void AppendSignal();
    void AppendEnum();
    void Read();
    void ReadBytes(const AnyPath& path, std::string_view bytes);
    void ReadWritten();
    void Write();
    void WriteToFullDevice(std::uint32_t order);

    ByteSource& input;
    test::Model model;

    // The bytes of the file that was written last.
    test::Model writtenModel;
    std::uint32_t writtenOrder = 0;
};

}  // namespace vexil::fuzz
