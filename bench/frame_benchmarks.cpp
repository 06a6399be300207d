// Measures how many values per second vexil64_frame.h decodes and encodes, with Google Benchmark.
// Names have the form function/kind of signal.
// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "vexil64_frame.h"

namespace vexil::bench {
namespace {

// Signals of one kind, which may overlap, and a frame that contains all of them.
struct Work {
    std::vector<CanSignalRecord> signals;
    std::vector<std::uint64_t> raws;  // the raw values to encode, one for each signal
    std::vector<double> values;       // the corresponding physical values
    std::vector<std::uint8_t> frame;
};

struct Kind {
    std::string name;
    std::uint32_t shortest;
    std::uint32_t longest;
    std::size_t frameSize;
    std::uint32_t valueType;  // ValueSigned: signed and unsigned signals alternate
};

constexpr std::size_t SignalCount = 1024;

CanSignalRecord MakeSignal(const Kind& kind, std::mt19937_64& random) {
    const auto pick = [&](std::uint64_t count) {
        return static_cast<std::uint32_t>(random() % count);
    };
    CanSignalRecord signal = {};
    signal.bitLength = kind.shortest + pick(kind.longest - kind.shortest + 1);
    signal.byteOrder = pick(2);
    signal.valueType = kind.valueType == ValueSigned ? pick(2) : kind.valueType;
    signal.factor = 0.5;
    signal.offset = -40;
    // The number of bits before a big-endian signal, from the most significant bit of byte 0 on.
    const std::uint32_t before = pick(kind.frameSize * 8 - signal.bitLength + 1);
    signal.startBit = signal.byteOrder == ByteOrderLittleEndian ? before : before ^ 7U;
    return signal;
}

void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

// Generates raw values that are equal after a conversion to physical values and back.
std::uint64_t MakeRaw(const CanSignalRecord& signal, std::mt19937_64& random) {
    constexpr std::uint32_t ExactBits = 48;
    std::uint64_t raw = random() >> (64 - std::min(signal.bitLength, ExactBits));
    if (signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64) {
        Require(VexilValueToRaw(&signal, static_cast<double>(random() % 1000), &raw) == FrameOk,
                "a number cannot be encoded");
    } else if (signal.valueType == ValueSigned) {
        raw >>= 1;
    }
    return raw;
}

Work MakeWork(const Kind& kind) {
    std::mt19937_64 random(1);
    Work work;
    work.frame.resize(kind.frameSize);
    while (work.signals.size() < SignalCount) {
        const CanSignalRecord signal = MakeSignal(kind, random);
        const std::uint64_t raw = MakeRaw(signal, random);
        double value = 0;
        std::uint64_t again = 0;
        Require(VexilEncodeRaw(&signal, raw, work.frame.data(), work.frame.size()) == FrameOk &&
                    VexilDecodeValue(&signal, work.frame.data(), work.frame.size(), &value) ==
                        FrameOk &&
                    VexilValueToRaw(&signal, value, &again) == FrameOk && again == raw,
                "a value does not survive its round trip");
        work.signals.push_back(signal);
        work.raws.push_back(raw);
        work.values.push_back(value);
    }
    return work;
}

// Runs an operation, which returns whether it succeeded, on each signal.
template <typename Operation>
void Measure(benchmark::State& state, const Kind& kind, const Operation& operation) {
    Work work = MakeWork(kind);
    std::size_t failures = 0;
    for ([[maybe_unused]] auto _ : state) {
        for (std::size_t i = 0; i < SignalCount; ++i) {
            failures += operation(work, i) == FrameOk ? 0 : 1;
        }
        benchmark::DoNotOptimize(work.frame.data());
        benchmark::ClobberMemory();
    }
    Require(failures == 0, "an operation fails");
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * SignalCount));
}

VexilFrameResult DecodeRaw(const Work& work, std::size_t i) {
    std::uint64_t raw = 0;
    const VexilFrameResult result =
        VexilDecodeRaw(&work.signals[i], work.frame.data(), work.frame.size(), &raw);
    benchmark::DoNotOptimize(raw);
    return result;
}

VexilFrameResult DecodeValue(const Work& work, std::size_t i) {
    double value = 0;
    const VexilFrameResult result =
        VexilDecodeValue(&work.signals[i], work.frame.data(), work.frame.size(), &value);
    benchmark::DoNotOptimize(value);
    return result;
}

VexilFrameResult EncodeRaw(Work& work, std::size_t i) {
    return VexilEncodeRaw(&work.signals[i], work.raws[i], work.frame.data(), work.frame.size());
}

VexilFrameResult EncodeValue(Work& work, std::size_t i) {
    return VexilEncodeValue(&work.signals[i], work.values[i], work.frame.data(), work.frame.size());
}

template <typename Operation>
void Register(const std::string& name, const Kind& kind, const Operation& operation) {
    benchmark::RegisterBenchmark((name + "/" + kind.name).c_str(),
                                 [=](benchmark::State& state) { Measure(state, kind, operation); });
}

}  // namespace
}  // namespace vexil::bench

int main(int argc, char** argv) {
    using namespace vexil::bench;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    const std::vector<Kind> kinds = {{"short", 1, 16, 8, ValueSigned},
                                     {"long", 33, 64, 64, ValueSigned},
                                     {"float32", 32, 32, 64, ValueFloat32},
                                     {"float64", 64, 64, 64, ValueFloat64}};
    for (const Kind& kind : kinds) {
        Register("decode_raw", kind, DecodeRaw);
        Register("decode_value", kind, DecodeValue);
        Register("encode_raw", kind, EncodeRaw);
        Register("encode_value", kind, EncodeValue);
    }
    Require(benchmark::RunSpecifiedBenchmarks() != 0, "no benchmark has that name");
    return 0;
}
