#include "cli/json_report.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "display/display_text.h"

namespace brinto {

namespace {

void AppendEscaped(std::string& out, std::string_view text) {
    out += '"';
    for (const char c : text) {
        const unsigned char u = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (u < 0x20 || u >= 0x7F) {
            // Control characters, and bytes of the locale's 8-bit text, as code points.
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", u);
            out += escaped;
        } else {
            out += c;
        }
    }
    out += '"';
}

void AppendNumber(std::string& out, double v) { AppendEscaped(out, NumberText(v)); }

void AppendInt(std::string& out, long long v) { out += std::to_string(v); }

template <typename T, typename F>
void AppendArray(std::string& out, const T* items, int count, F each) {
    out += '[';
    for (int i = 0; i < count; ++i) {
        if (i) out += ',';
        each(out, items[i]);
    }
    out += ']';
}

void AppendEntry(std::string& out, double value, ValueTag tag, int aux) {
    out += "{\"value\":";
    AppendNumber(out, value);
    out += ",\"tag\":";
    AppendInt(out, ToNumber(tag));
    out += ",\"aux\":";
    AppendInt(out, aux);
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
    std::string out = "[";
    for (const TapeLine& line : lines) {
        if (out.size() > 1) out += ',';
        out += "{\"time\":";
        AppendEscaped(out, line.time);
        out += ",\"text\":";
        AppendEscaped(out, line.keys);
        out += ",\"result\":";
        AppendEscaped(out, line.result);
        out += ",\"label\":";
        AppendEscaped(out, line.label);
        out += ",\"value\":";
        AppendNumber(out, line.value);
        out += '}';
    }
    return out + "]\n";
}

std::string JsonReport(const Session& session, const Report& report) {
    const Engine& e = session.engine();
    const CalcState& s = e.state;
    std::string out;
    out.reserve(16384);
    out += "{\"stack\":[";
    for (int k = 0; k < kStackLevels; ++k) {
        if (k) out += ',';
        AppendEntry(out, s.stack[k], s.tags[k], s.aux[k]);
        const DisplayLine line = DisplayLevel(e, k);
        out += ",\"text\":";
        AppendEscaped(out, line.text);
        out += ",\"label\":";
        AppendEscaped(out, line.label);
        out += '}';
    }
    out += "],\"depth\":";
    AppendInt(out, e.StackDepth());
    out += ",\"lastX\":";
    AppendEntry(out, s.lastX, s.lastXTag, s.lastXAux);
    out += "},\"entry\":";
    if (s.status & status::Entry) {
        AppendEscaped(out, s.entryText);
    } else {
        out += "null";
    }
    out += ",\"status\":";
    AppendInt(out, s.status);
    out += ",\"viewFlags\":";
    AppendInt(out, s.viewFlags);
    out += ",\"engineFlags\":";
    AppendInt(out, s.engineFlags);
    out += ",\"pending\":";
    AppendArray(out, s.pendingOps, s.pendingCount > kMaxPending ? kMaxPending : s.pendingCount,
                [](std::string& o, FunctionId v) { AppendInt(o, ToNumber(v)); });
    out += ",\"repeatOperator\":";
    AppendInt(out, ToNumber(s.repeatOperator));
    out += ",\"parenDepth\":";
    AppendInt(out, s.parenDepth);
    out += ",\"registers\":";
    AppendArray(out, e.registers.values, kRegisterCount, AppendNumber);
    out += ",\"cashFlowCount\":";
    AppendInt(out, e.registers.cashFlowCount);
    out += ",\"groupCounts\":";
    AppendArray(out, e.registers.aux, kUserRegisters,
                [](std::string& o, u32 v) { AppendInt(o, static_cast<i32>(v)); });
    out += ",\"amort\":{\"interest\":";
    AppendNumber(out, s.amortInterest);
    out += ",\"principal\":";
    AppendNumber(out, s.amortPrincipal);
    out += ",\"balance\":";
    AppendNumber(out, s.amortBalance);
    out += ",\"start\":";
    AppendInt(out, s.amortStart);
    out += ",\"end\":";
    AppendInt(out, s.amortEnd);
    out += ",\"step\":";
    AppendInt(out, s.amortStep);
    out += "},\"prefs\":";
    AppendArray(out, e.prefs.words.data(), 7, [](std::string& o, u16 v) { AppendInt(o, v); });
    out += ",\"macro\":";
    AppendArray(out, e.macro.macroKeys, e.macro.macroLength > kMacroSlots ? kMacroSlots : e.macro.macroLength,
                [](std::string& o, FunctionId v) { AppendInt(o, ToNumber(v)); });
    out += ",\"messages\":";
    AppendArray(out, report.messages.data(), static_cast<int>(report.messages.size()),
                [](std::string& o, const ReportMessage& m) {
                    o += "{\"caption\":";
                    AppendEscaped(o, m.caption);
                    o += ",\"text\":";
                    AppendEscaped(o, m.text);
                    o += '}';
                });
    out += ",\"rejected\":";
    AppendArray(out, report.rejected.data(), static_cast<int>(report.rejected.size()),
                [](std::string& o, int v) { AppendInt(o, v); });
    out += ",\"clipboard\":";
    if (report.clipboard) {
        AppendEscaped(out, *report.clipboard);
    } else {
        out += "null";
    }
    out += "}\n";
    return out;
}

}  // namespace brinto
