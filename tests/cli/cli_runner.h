#pragma once
// Runs brinto-cli as a child process and reads back its output; a small JSON reader for --json.
#include <map>
#include <memory>
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

// A parsed JSON value; numbers are kept as their text.
struct Json {
    enum class Kind { Null, Bool, Number, String, Array, Object } kind = Kind::Null;
    std::string text;  // Number, String, Bool ("true"/"false")
    std::vector<Json> items;
    std::vector<std::pair<std::string, Json>> members;

    // A value by dotted path ("stack.0.text"); nothing when the path does not exist.
    const Json* Find(const std::string& path) const;
    // Compact text: strings unquoted at the top, arrays and objects as JSON.
    std::string Compact(bool top = true) const;
};

std::optional<Json> ParseJson(const std::string& text);

}  // namespace brinto::test
