// Dispatch of single keys (undo snapshot and commit included), a long key program, and whole
// brinto-cli runs from start to exit.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "calculator/assembly.h"
#include "engine/engine.h"

extern char** environ;

namespace brinto {
namespace {

Engine RpnEngine() {
    Engine e(CalculatorFamilies());
    e.prefs.SetMethod(InputMethod::Rpn);
    e.ClearStack();
    return e;
}

void BM_DispatchDigit(benchmark::State& state) {
    Engine e = RpnEngine();
    for (auto _ : state) {
        e.state.status &= static_cast<u16>(~status::Entry);  // each digit starts a new number
        benchmark::DoNotOptimize(e.Dispatch(fid::Digit7));
    }
}
BENCHMARK(BM_DispatchDigit);

void BM_DispatchEnter(benchmark::State& state) {
    Engine e = RpnEngine();
    e.Dispatch(fid::Digit3);
    for (auto _ : state) benchmark::DoNotOptimize(e.Dispatch(fid::Enter));
}
BENCHMARK(BM_DispatchEnter);

void BM_DispatchAdd(benchmark::State& state) {
    Engine e = RpnEngine();
    for (int i = 0; i < 4; ++i) e.Dispatch(fid::Enter);
    for (auto _ : state) {
        e.state.stack[1] = 1.5;
        benchmark::DoNotOptimize(e.Dispatch(fid::Add));
    }
}
BENCHMARK(BM_DispatchAdd);

// The script of the stdin benchmark: 50,000 products of digit pairs summed in RPN.
std::vector<FunctionId> ProductSumProgram() {
    std::vector<FunctionId> keys = {fid::MethodRpn, fid::Digit0};
    for (int i = 0; i < 50000; ++i) {
        const FunctionId a = DigitKey(i % 10), b = DigitKey((i * 7) % 10);
        for (FunctionId k : {fid::Enter, a, fid::Enter, b, fid::Multiply, fid::Add}) keys.push_back(k);
    }
    return keys;
}

void BM_HundredThousandKeys(benchmark::State& state) {
    const std::vector<FunctionId> keys = ProductSumProgram();
    for (auto _ : state) {
        Engine e(CalculatorFamilies());
        for (const FunctionId k : keys) e.Dispatch(k);
        benchmark::DoNotOptimize(e.X());
    }
    state.counters["keys"] = static_cast<double>(keys.size());
}
BENCHMARK(BM_HundredThousandKeys)->Unit(benchmark::kMillisecond);

int Spawn(const std::vector<std::string>& args, const char* inputFile) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, inputFile ? inputFile : "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(BRINTO_CLI_PATH));
    for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    pid_t pid;
    if (posix_spawn(&pid, BRINTO_CLI_PATH, &actions, nullptr, argv.data(), environ) != 0) return -1;
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    waitpid(pid, &status, 0);
    return status;
}

void BM_CliOneCalculation(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(Spawn({"--memory", "2", "enter", "3", "+"}, nullptr));
}
BENCHMARK(BM_CliOneCalculation)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_CliHundredThousandOperations(benchmark::State& state) {
    // "#211 0 #21 3 #21 7 #24 #22 ...": 100,000 operations on standard input.
    std::string program = "#211 0";
    for (int i = 0; i < 50000; ++i) {
        program += " #21 " + std::to_string(i % 10) + " #21 " + std::to_string((i * 7) % 10) + " #24 #22";
    }
    char path[] = "/tmp/brinto-bench-XXXXXX";
    const int fd = mkstemp(path);
    if (fd < 0 || write(fd, program.data(), program.size()) != static_cast<ssize_t>(program.size())) {
        state.SkipWithError("cannot write the program");
        return;
    }
    close(fd);
    for (auto _ : state) benchmark::DoNotOptimize(Spawn({"--memory"}, path));
    unlink(path);
}
BENCHMARK(BM_CliHundredThousandOperations)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace brinto
