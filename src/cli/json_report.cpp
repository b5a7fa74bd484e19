#include "cli/json_report.h"

#include <charconv>
#include <cmath>

#include <nlohmann/json.hpp>

#include "display/display_text.h"

namespace brinto {

namespace {

// Members stay in the order written, as the report has always listed them.
using Json = nlohmann::ordered_json;

// Values as text: JSON has no infinity or NaN, and the text keeps every bit of a double.
Json Entry(double value, ValueTag tag, int aux) {
    return {{"value", NumberText(value)}, {"tag", ToNumber(tag)}, {"aux", aux}};
}

template <typename T, typename F>
Json Array(const T* items, int count, F each) {
    Json out = Json::array();
    for (int i = 0; i < count; ++i) out.push_back(each(items[i]));
    return out;
}

Json Keys(const FunctionId* ids, int count) {
    return Array(ids, count, [](FunctionId id) { return ToNumber(id); });
}

}  // namespace

std::string NumberText(double v) {
    if (std::isnan(v)) return "nan";
    if (std::isinf(v)) return v > 0 ? "inf" : "-inf";
    char text[32];
    const auto r = std::to_chars(text, text + sizeof text, v);
    return std::string(text, r.ptr);
}

std::string TapeJson(const std::vector<TapeLine>& lines) {
    Json out = Json::array();
    for (const TapeLine& line : lines) {
        out.push_back({{"time", line.time},
                       {"text", line.keys},
                       {"result", line.result},
                       {"label", line.label},
                       {"value", NumberText(line.value)}});
    }
    return out.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

std::string JsonReport(const Session& session, const Report& report) {
    const Engine& e = session.engine();
    const CalcState& s = e.state;
    Json stack = Json::array();
    for (int k = 0; k < kStackLevels; ++k) {
        Json level = Entry(s.stack[k], s.tags[k], s.aux[k]);
        const DisplayLine line = DisplayLevel(e, k);
        level["text"] = line.text;
        level["label"] = line.label;
        stack.push_back(std::move(level));
    }
    Json messages = Json::array();
    for (const ReportMessage& m : report.messages) messages.push_back({{"caption", m.caption}, {"text", m.text}});
    const Json out = {
        {"stack", std::move(stack)},
        {"depth", e.StackDepth()},
        {"lastX", Entry(s.lastX, s.lastXTag, s.lastXAux)},
        {"entry", (s.status & status::Entry) ? Json(std::string(s.entryText)) : Json()},
        {"status", s.status},
        {"viewFlags", s.viewFlags},
        {"engineFlags", s.engineFlags},
        {"pending", Keys(s.pendingOps, std::min<int>(s.pendingCount, kMaxPending))},
        {"repeatOperator", ToNumber(s.repeatOperator)},
        {"parenDepth", s.parenDepth},
        {"registers", Array(e.registers.values, kRegisterCount, NumberText)},
        {"cashFlowCount", e.registers.cashFlowCount},
        {"groupCounts", Array(e.registers.aux, kUserRegisters, [](u32 v) { return static_cast<i32>(v); })},
        {"amort",
         {{"interest", NumberText(s.amortInterest)},
          {"principal", NumberText(s.amortPrincipal)},
          {"balance", NumberText(s.amortBalance)},
          {"start", s.amortStart},
          {"end", s.amortEnd},
          {"step", s.amortStep}}},
        {"prefs", e.prefs.words},
        {"macro", Keys(e.macro.macroKeys, std::min<int>(e.macro.macroLength, kMacroSlots))},
        {"messages", std::move(messages)},
        {"rejected", report.rejected},
        {"clipboard", report.clipboard ? Json(*report.clipboard) : Json()},
    };
    // Text that is not UTF-8 (a pasted byte, a date in an 8-bit locale's spelling) shows U+FFFD
    // where it cannot be read, so the report is valid JSON whatever the calculator holds.
    return out.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace brinto
