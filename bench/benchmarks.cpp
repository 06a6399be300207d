// Measures reading, fetching, writing and the plain loops with Google Benchmark. Names have the
// form operation/database, so a filter can select either.
// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "inputs.h"
#include "support/files.h"
#include "work.h"

namespace vexil::bench {
namespace {

const test::TempFolder& Folder() {
    static const test::TempFolder folder;
    return folder;
}

// A database as a file. It is generated on first use, because a filter can leave it out.
class Source {
  public:
    explicit Source(NamedDatabase source) : named(std::move(source)) {}

    const std::string& Path() {
        if (path.empty()) {
            const Database database = named.make();
            path = Folder().File(std::to_string(++count) + ".dbc");
            test::WriteBytes(path, database.text);
            ReadDatabase(path);
            CheckDatabase(database);
        }
        return path;
    }

  private:
    static inline unsigned count = 0;

    NamedDatabase named;
    std::string path;
};

void SetBytes(benchmark::State& state, const std::string& path) {
    const auto size = static_cast<std::int64_t>(test::ReadBytes(path).size());
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * size);
}

void MeasureRead(benchmark::State& state, const std::string& path) {
    for ([[maybe_unused]] auto _ : state) {
        ReadDatabase(path);
    }
    SetBytes(state, path);
}

void MeasureReadLines(benchmark::State& state, const std::string& path) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(ReadLines(path));
    }
    SetBytes(state, path);
}

void MeasureFetch(benchmark::State& state, const std::string& path) {
    ReadDatabase(path);
    std::uint64_t records = 0;
    for ([[maybe_unused]] auto _ : state) {
        records += FetchRecords();
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(records));
}

void MeasureWrite(benchmark::State& state, const std::string& path, const std::string& to) {
    ReadDatabase(path);
    for ([[maybe_unused]] auto _ : state) {
        WriteDatabase(to);
    }
}

void MeasureWriteLines(benchmark::State& state, const std::string& path, const std::string& to) {
    const std::string written = Folder().File("written.dbc");
    ReadDatabase(path);
    WriteDatabase(written);
    const std::string text = test::ReadBytes(written);
    const std::vector<std::string_view> lines = SplitLines(text);
    for ([[maybe_unused]] auto _ : state) {
        WriteLines(to, lines);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * lines.size()));
}

void Register(const std::string& name, const std::function<void(benchmark::State&)>& run) {
    benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
}

void RegisterReads(const std::string& name, const std::function<std::string()>& path) {
    Register("read/" + name, [=](benchmark::State& state) { MeasureRead(state, path()); });
    Register("read_lines/" + name,
             [=](benchmark::State& state) { MeasureReadLines(state, path()); });
}

void RegisterAll(const NamedDatabase& named) {
    const auto source = std::make_shared<Source>(named);
    const auto path = [source] { return source->Path(); };
    const auto file = [] { return Folder().File("output.dbc"); };
    const std::string sink(Sink);
    RegisterReads(named.name, path);
    Register("fetch/" + named.name, [=](benchmark::State& state) { MeasureFetch(state, path()); });
    Register("write/" + named.name,
             [=](benchmark::State& state) { MeasureWrite(state, path(), file()); });
    Register("write_lines/" + named.name,
             [=](benchmark::State& state) { MeasureWriteLines(state, path(), file()); });
    Register("write_sink/" + named.name,
             [=](benchmark::State& state) { MeasureWrite(state, path(), sink); });
    Register("write_lines_sink/" + named.name,
             [=](benchmark::State& state) { MeasureWriteLines(state, path(), sink); });
}

}  // namespace
}  // namespace vexil::bench

int main(int argc, char** argv) {
    using namespace vexil::bench;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    for (const NamedDatabase& named : PlainDatabases()) {
        RegisterAll(named);
    }
    if (const std::string real = LargestRealFile(); !real.empty()) {
        RegisterReads("real", [real] { return real; });
    }
    for (const NamedDatabase& named : HostileDatabases(MiB)) {
        RegisterAll(named);
    }
    const bool some = benchmark::RunSpecifiedBenchmarks() != 0;
    Check(some, "no benchmark has that name");
    return 0;
}
