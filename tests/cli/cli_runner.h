#pragma once
// The one way the tests start brinto-cli (or a shell line that runs it), and reading its --json
// report.
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace brinto::test {

struct RunResult {
    int exitCode = -1;
    std::string out;
    std::string err;
};

// Runs `argv` (a program and its arguments) in the C locale with `environment` added to this
// process's ("LC_ALL=fr_FR.UTF-8"), `input` on its standard input; standard output goes to
// `outputFile` instead of being read back when one is named.
RunResult RunProgram(const std::vector<std::string>& argv, const std::string& input = "",
              const std::vector<std::string>& environment = {}, const std::string& outputFile = "");
// Runs brinto-cli with `args`, as RunProgram.
RunResult RunCli(const std::vector<std::string>& args, const std::string& input = "",
                 const std::vector<std::string>& environment = {}, const std::string& outputFile = "");

// The JSON report, read with the same library that writes it; nothing when it is no JSON.
using Json = nlohmann::ordered_json;
std::optional<Json> ParseJson(const std::string& text);
// A value by dotted path ("stack.0.text"); nothing when the path does not exist.
const Json* Find(const Json& json, const std::string& path);
// Compact text: a string as it is, anything else as JSON ("[7,0,656]").
std::string Compact(const Json& value);

}  // namespace brinto::test
