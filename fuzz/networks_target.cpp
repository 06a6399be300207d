// Files made of statements that fit together, or nearly so, and all seventeen functions in turn on
// what they give.
//
// An input begins with the number of its files and their statements, see network_file.h. Then comes
// "g" if one of them is to be read as a large file. The rest is a sequence of calls: those of
// Host::Call, and "f" with the number of a file, which reads it. Besides the results, each call has
// a budget of memory and time, see budget.h.
// SPDX-License-Identifier: MIT
#include <string>
#include <utility>
#include <vector>

#include "byte_source.h"
#include "expect.h"
#include "growth_check.h"
#include "held_model.h"
#include "host.h"
#include "network_file.h"
#include "target.h"
#include "vexil64.h"

namespace vexil::fuzz {
namespace {

// A bus type that no file sets.
constexpr std::uint32_t NoBus = 7;

// What an input without calls does: it reads its files in turn, and writes and reads them in each
// order.
constexpr std::string_view UsualCalls = "f0w00Rw01Rf1w01Rw02Rf0w02Rcf2w00Rf1f0w01";

struct Network {
    NetworkFile file;
    test::Model model;  // of a read into an empty database with NoBus
};

class Networks {
  public:
    explicit Networks(ByteSource& input) {
        const std::uint32_t count = 1 + input.Word() % 3;
        for (std::uint32_t at = 0; at < count; ++at) {
            networks.push_back({NetworkFile(input), {}});
        }
    }

    // "g", the file, the first statement that is repeated, how, and the size.
    void Grow(ByteSource& input) const {
        if (!input.Next('g')) {
            return;
        }
        constexpr std::size_t KiB = 1024;
        constexpr std::size_t Sizes[] = {16 * KiB, 64 * KiB, 256 * KiB, 1024 * KiB};
        const NetworkFile& file = At(input).file;
        const std::uint32_t from = input.Word();
        const bool inTurn = input.Next('t');
        const std::uint32_t choice = input.Word();
        // The largest takes a second under sanitizers, so only a typed digit chooses it.
        CheckGrowth(file.Grown(from, inTurn, Sizes[choice <= 3 ? choice : choice % 3]));
    }

    void ReadEachAlone() {
        for (Network& network : networks) {
            ByteSource setInfo(
                "8"
                "0"
                "7");
            Host host(setInfo);
            host.Call('I');
            host.ReadFile(network.file.Text());
            network.model = host.Held();
        }
    }

    void MakeCalls(ByteSource& input) const {
        Host host(input);
        while (!input.IsAtEnd()) {
            const char function = input.Byte();
            if (function == 'f') {
                Read(host, At(input));
            } else {
                host.Call(function);
            }
        }
    }

  private:
    const Network& At(ByteSource& input) const { return networks[input.Word() % networks.size()]; }

    // A file gives the same whatever was in the database, but for a bus type that it does not set.
    static void Read(Host& host, const Network& network) {
        test::Model expected = network.model;
        if (expected.info.busType == NoBus) {
            expected.info.busType = host.Held().info.busType;
        }
        host.ReadFile(network.file.Text());
        ExpectSameModel(host.Held(), expected, "a file gives the same after any calls");
    }

    std::vector<Network> networks;
};

}  // namespace
}  // namespace vexil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexil::fuzz;
    ByteSource input({reinterpret_cast<const char*>(data), size});
    Networks networks(input);
    networks.Grow(input);
    networks.ReadEachAlone();
    ByteSource usualCalls(UsualCalls);
    networks.MakeCalls(input.IsAtEnd() ? usualCalls : input);
    return 0;
}
