#pragma once
// The JSON report of brinto-cli --json.
#include <optional>
#include <string>
#include <vector>

#include "session/session.h"

namespace brinto {

struct ReportMessage {
    std::string caption;
    std::string text;
};

struct Report {
    std::vector<ReportMessage> messages;
    std::vector<int> rejected;
    std::optional<std::string> clipboard;
};

// A double as its shortest round-trip text ("5", "0.1", "1e+22", "-0", "inf", "-inf", "nan").
std::string NumberText(double v);

std::string JsonReport(const Session& session, const Report& report);

// The history tape as a JSON array, oldest line first: each line's time, text (the keys), result
// and label as the display shows them, and value.
std::string TapeJson(const std::vector<TapeLine>& lines);

}  // namespace brinto
