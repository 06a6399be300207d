// The seventeen functions in any sequence, with any records, indexes, sizes, paths and files.
//
// Each call of an input begins with the letter of its function, see Host::Call, followed by its
// arguments in the form of byte_source.h. Other bytes between calls are ignored.
// SPDX-License-Identifier: MIT
#include "byte_source.h"
#include "host.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vexil::fuzz::ByteSource input({reinterpret_cast<const char*>(data), size});
    vexil::fuzz::Host host(input);
    while (!input.IsAtEnd()) {
        host.Call(input.Byte());
    }
    return 0;
}
