// JSON documents with a record or two.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vexil::test {

// A document of one message.
inline std::string WithMessage(const std::string& members) {
    return "{\"messages\":[{" + members + "}]}";
}

// A document of one message with one signal.
inline std::string WithSignal(const std::string& members) {
    return WithMessage(R"("id":1,"longName":"A","signals":[{)" + members + "}]");
}

inline std::string WithDescription(const std::string& members) {
    return WithSignal(R"("longName":"S","startBit":0,"bitLength":8,"valueDescriptions":[{)" +
                      members + "}]");
}

}  // namespace vexil::test
