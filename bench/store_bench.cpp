// The desktop program saves on every deactivation and loads at every start: both must stay well
// under what a user notices (targets: 2 ms each). Each runs on a real database file.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "store/state_io.h"

namespace brinto {
namespace {

// A database file in a temporary folder that goes away with the benchmark.
class ScratchDatabase {
public:
    ScratchDatabase() {
        std::string pattern = "/tmp/brinto-bench-XXXXXX";
        if (mkdtemp(pattern.data())) m_folder = pattern;
    }
    ~ScratchDatabase() {
        std::error_code ec;
        std::filesystem::remove_all(m_folder, ec);
    }
    std::string Path() const { return (m_folder / "brinto.db").string(); }

private:
    std::filesystem::path m_folder;
};

void MarkAllChanged(Engine& e) { e.dirty = {true, true, true, true, true}; }

// A deactivation: with argument 1 after the user changed everything (five records in one
// transaction), with 0 the usual case of CalcState alone, which is always written.
void SaveRecords(benchmark::State& state) {
    const bool everything = state.range(0) != 0;
    ScratchDatabase scratch;
    RecordStore store;
    if (store.Open(scratch.Path()) != OpenResult::Opened) state.SkipWithError("cannot open");
    Engine e;
    UserKeyMap keys = EmptyUserKeyMap();
    MarkAllChanged(e);
    SaveState(e, keys, store);  // the first save after opening waits for the disk once
    double x = 0;
    for (auto _ : state) {
        e.SetX(x += 1);
        if (everything) MarkAllChanged(e);
        benchmark::DoNotOptimize(SaveState(e, keys, store));
    }
}
BENCHMARK(SaveRecords)->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

// Reading and checking all five records from an open file.
void LoadAllRecords(benchmark::State& state) {
    ScratchDatabase scratch;
    RecordStore store;
    if (store.Open(scratch.Path()) != OpenResult::Opened) state.SkipWithError("cannot open");
    Engine e;
    UserKeyMap keys = EmptyUserKeyMap();
    MarkAllChanged(e);
    SaveState(e, keys, store);
    for (auto _ : state) benchmark::DoNotOptimize(LoadState(e, keys, store));
}
BENCHMARK(LoadAllRecords)->Unit(benchmark::kMicrosecond);

// Start-up as a whole: open (with the integrity check of the file), load, close.
void OpenLoadClose(benchmark::State& state) {
    ScratchDatabase scratch;
    {
        RecordStore store;
        store.Open(scratch.Path());
        Engine e;
        UserKeyMap keys = EmptyUserKeyMap();
        MarkAllChanged(e);
        SaveState(e, keys, store);
    }
    Engine e;
    UserKeyMap keys{};
    for (auto _ : state) {
        RecordStore store;
        store.Open(scratch.Path());
        benchmark::DoNotOptimize(LoadState(e, keys, store));
    }
}
BENCHMARK(OpenLoadClose)->Unit(benchmark::kMicrosecond);

// A run of brinto-cli or the desktop program: open, load, one save (the one that waits for the
// disk), close.
void OpenLoadSaveClose(benchmark::State& state) {
    ScratchDatabase scratch;
    Engine e;
    UserKeyMap keys = EmptyUserKeyMap();
    for (auto _ : state) {
        RecordStore store;
        store.Open(scratch.Path());
        LoadState(e, keys, store);
        benchmark::DoNotOptimize(SaveState(e, keys, store));
    }
}
BENCHMARK(OpenLoadSaveClose)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brinto
