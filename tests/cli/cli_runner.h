#pragma once
// Runs brinto-cli as a child process and reads back its output, and reads its --json report.
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

// In the C locale unless `environment` says otherwise ("LC_ALL=fr_FR.UTF-8").
RunResult RunCli(const std::vector<std::string>& args, const std::string& input = "",
                 const std::vector<std::string>& environment = {});

// The JSON report, read with the same library that writes it; nothing when it is no JSON.
using Json = nlohmann::ordered_json;
std::optional<Json> ParseJson(const std::string& text);
// A value by dotted path ("stack.0.text"); nothing when the path does not exist.
const Json* Find(const Json& json, const std::string& path);
// Compact text: a string as it is, anything else as JSON ("[7,0,656]").
std::string Compact(const Json& value);

}  // namespace brinto::test
