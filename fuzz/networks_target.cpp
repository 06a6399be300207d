// Files whose statements refer to one another, mostly correctly, and calls of all seventeen
// functions on them.
//
// An input begins with the number of its files and their statements, see network_file.h. Next, "g"
// means that one of them is read as a large file. The rest is a sequence of calls: those of
// Host::Call, and "f" with the number of a file, which reads it. The results of each call are
// checked, as well as its memory and time, see budget.h.
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

// The calls for an input without calls: reads its files in turn, and writes and reads them in each
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

    // After "g": the file, the first statement to repeat, the way of repeating, and the size.
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
        // The largest size takes a second under sanitizers, so only a typed digit selects it.
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

    // A read does not depend on the previous database, except for a bus type that the file does not
    // set.
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
