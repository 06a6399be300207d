// A host that makes the calls of an input, and the plain model of what the library then holds.
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

    // Makes the call of this letter; none when no function has it.
    void Call(char function);

    // Reads a file of these bytes.
    void ReadFile(std::string_view bytes);

    // What the library holds.
    const test::Model& Held() const { return model; }

  private:
    // Of the model; null when there is none.
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

    // Of the last file that was written.
    test::Model writtenModel;
    std::uint32_t writtenOrder = 0;
};

}  // namespace vexil::fuzz
