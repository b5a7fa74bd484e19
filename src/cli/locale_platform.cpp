#include "cli/locale_platform.h"

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

namespace brinto {

namespace {

std::tm ToTm(const DateFields& d) {
    std::tm t{};
    t.tm_year = d.year - 1900;
    t.tm_mon = d.month - 1;
    t.tm_mday = d.day;
    t.tm_hour = d.hour;
    t.tm_min = d.minute;
    t.tm_sec = d.second;
    t.tm_wday = d.dayOfWeek;
    return t;
}

// The calculator's texts are UTF-8; strftime spells names in the character set of the time
// locale, which an older setup may have as an 8-bit one ("fr_FR.ISO-8859-1"). Text that cannot
// be converted stays as it is: the report marks what it cannot read.
std::string ToUtf8(std::string text) {
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) return text;
    const locale_t time = newlocale(LC_CTYPE_MASK, setlocale(LC_TIME, nullptr), locale_t{});
    if (time == locale_t{}) return text;
    const std::string codeset = nl_langinfo_l(CODESET, time);
    freelocale(time);
    if (codeset == "UTF-8") return text;
    const iconv_t convert = iconv_open("UTF-8", codeset.c_str());
    if (convert == reinterpret_cast<iconv_t>(-1)) return text;
    std::string out(text.size() * 4, '\0');
    char* in = text.data();
    char* to = out.data();
    std::size_t inLeft = text.size(), outLeft = out.size();
    const bool converted = iconv(convert, &in, &inLeft, &to, &outLeft) != static_cast<std::size_t>(-1);
    iconv_close(convert);
    if (!converted) return text;
    out.resize(out.size() - outLeft);
    return out;
}

std::string Format(const char* pattern, const DateFields& d) {
    const std::tm t = ToTm(d);
    char text[128];
    const std::size_t n = std::strftime(text, sizeof text, pattern, &t);
    return ToUtf8(std::string(text, n));
}

// Days since 1970-01-01 of a civil date (proleptic Gregorian).
int DayOfWeek(int year, int month, int day) {
    const std::chrono::sys_days days{std::chrono::year{year} / month / day};
    return static_cast<int>(std::chrono::weekday{days}.c_encoding());
}

}  // namespace

DateFields LocalePlatform::Now() const {
    if (pinnedNow) return *pinnedNow;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return DateFields{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                      local.tm_min, local.tm_sec, local.tm_wday};
}

// The C library has no long date format of its own, but its date-and-time format (date(1)'s) puts
// weekday, day, month and year in the locale's order: "%a %-d. %b %H:%M:%S %Z %Y" in German. Its
// date fields are kept, spelt out, in that order and with their punctuation ("%A %-d. %B %Y"); the
// month-day-year order keeps the English form with its commas.
std::string LongDatePattern() {
    const std::string full = nl_langinfo(_DATE_FMT);
    // The date fields spelt out, each with the text that follows it in the format.
    std::vector<std::pair<std::string, std::string>> fields;
    bool keep = false;  // whether the text read belongs to a date field
    for (std::size_t i = 0; i < full.size(); ++i) {
        if (full[i] != '%' || i + 1 == full.size()) {
            if (keep) fields.back().second += full[i];
            continue;
        }
        if (full[i + 1] == '-' || full[i + 1] == '_' || full[i + 1] == '0') ++i;
        const char field = full[++i];
        const std::string spelt = field == 'a' || field == 'A'                   ? "%A"
                                  : field == 'b' || field == 'B' || field == 'h' ? "%B"
                                  : field == 'd' || field == 'e'                 ? "%-d"
                                  : field == 'Y'                                 ? "%Y"
                                                                                 : "";
        keep = !spelt.empty();
        if (keep) fields.push_back({spelt, ""});
    }
    std::string pattern;
    for (std::size_t k = 0; k < fields.size(); ++k) {
        pattern += fields[k].first;
        if (k + 1 < fields.size()) pattern += fields[k].second.empty() ? " " : fields[k].second;
    }
    const std::size_t month = pattern.find("%B"), day = pattern.find("%-d"), year = pattern.find("%Y");
    const bool complete = fields.size() == 4 && month != std::string::npos && day != std::string::npos &&
                          year != std::string::npos;
    return complete && !(month < day && day < year) ? pattern : "%A, %B %-d, %Y";
}

std::string LocalePlatform::DateText(const DateFields& date, bool longForm) const {
    return Format(longForm ? LongDatePattern().c_str() : nl_langinfo(D_FMT), date);
}

std::string LocalePlatform::TimeText(const DateFields& time) const {
    // The locale's time format without its seconds.
    std::string pattern = nl_langinfo(T_FMT);
    const std::size_t seconds = pattern.find("%S");
    if (seconds != std::string::npos) {
        const std::size_t from = seconds > 0 ? seconds - 1 : seconds;
        pattern.erase(from, seconds + 2 - from);
    }
    if (pattern.find("%T") != std::string::npos) pattern = "%H:%M";
    return Format(pattern.c_str(), time);
}

std::optional<DateFields> ParseDateTime(std::string_view text) {
    int y, mo, d, h, mi, s;
    char tail;
    const std::string copy(text);
    if (std::sscanf(copy.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &y, &mo, &d, &h, &mi, &s, &tail) != 6) {
        return std::nullopt;
    }
    if (y < 1 || mo < 1 || mo > 12 || h < 0 || h > 23 || mi < 0 || mi > 59 || s < 0 || s > 59) return std::nullopt;
    // A day the month does not have (30 February) is refused, not carried into the next month.
    constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
    if (d < 1 || d > kDays[mo - 1] + (mo == 2 && leap ? 1 : 0)) return std::nullopt;
    return DateFields{y, mo, d, h, mi, s, DayOfWeek(y, mo, d)};
}

}  // namespace brinto
