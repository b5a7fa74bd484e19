// The README's brinto-cli examples, run exactly as printed. An example is an indented line
//   $ COMMAND
// that mentions brinto-cli, followed by the indented lines it prints (standard output and standard
// error as a terminal shows them), up to a blank line or the next "$" line. The examples run one
// after the other under /bin/sh with a fresh home folder, so a tour can show a calculator that
// carries over from one run to the next, and in the C locale, so dates read the same everywhere.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace brinto::test {
namespace {

namespace fs = std::filesystem;

struct Example {
    int line;
    std::string command;
    std::string expect;
};

std::vector<Example> ReadExamples(const fs::path& readme) {
    std::ifstream in(readme);
    std::vector<Example> examples;
    bool open = false;  // the last example still takes output lines
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        const bool indented = line.rfind("    ", 0) == 0;
        if (indented && line.rfind("    $ ", 0) == 0) {
            const std::string command = line.substr(6);
            open = command.find("brinto-cli") != std::string::npos;
            if (open) examples.push_back({number, command, {}});
        } else if (indented && open) {
            examples.back().expect += (examples.back().expect.empty() ? "" : "\n") + line.substr(4);
        } else {
            open = false;
        }
    }
    return examples;
}

// Runs one command line in `home` with only brinto-cli's folder before the system's on PATH.
std::string RunShell(const fs::path& home, const std::string& command) {
    const fs::path script = home / "example.sh";
    std::ofstream(script) << command << '\n';
    const std::string bin = fs::path(BRINTO_CLI_PATH).parent_path().string();
    const std::string line = "cd '" + home.string() + "' && env -i HOME='" + home.string() +
                             "' XDG_DATA_HOME='" + (home / "data").string() + "' XDG_CONFIG_HOME='" +
                             (home / "config").string() + "' LC_ALL=C PATH='" + bin +
                             ":/usr/bin:/bin' sh example.sh 2>&1";
    FILE* pipe = popen(line.c_str(), "r");
    std::string out;
    char buffer[4096];
    for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    pclose(pipe);
    while (!out.empty() && out.back() == '\n') out.pop_back();
    return out;
}

TEST(Readme, EveryBrintoCliExamplePrintsWhatTheReadmeShows) {
    const auto examples = ReadExamples(fs::path(BRINTO_SOURCE_DIR) / "README.md");
    ASSERT_GE(examples.size(), 10u) << "the README's examples were not found";
    const fs::path home = fs::temp_directory_path() / ("brinto-readme-" + std::to_string(getpid()));
    fs::remove_all(home);
    fs::create_directories(home);
    for (const Example& e : examples) {
        EXPECT_EQ(RunShell(home, e.command), e.expect) << "README.md:" << e.line << ": $ " << e.command;
    }
    fs::remove_all(home);
}

}  // namespace
}  // namespace brinto::test
