// Every number field and brinto-cli's number tokens read text here: one table of what each kind
// of field makes of a text, or the few words that say why it refuses it.
#include "session/number_reader.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace brinto {
namespace {

TEST(NumberReader, FieldsReadOneNumberOrSayWhyNot) {
    using K = FieldKind;
    constexpr std::string_view kNotANumber = "Not a number", kOutOfRange = "Out of range",
                               kPayment = "A whole number from 1 to 32767", kCount = "A whole number from 1 up";
    struct Case {
        const char* text;
        bool commaRadix;
        FieldKind kind;
        std::optional<double> value;
        std::string_view problem;
    };
    const Case cases[] = {
        {"6.5", false, K::Value, 6.5, ""},
        {"6,5", false, K::Value, std::nullopt, kNotANumber},  // not 65
        {"6,5", true, K::Value, 6.5, ""},
        {"6.5", true, K::Value, std::nullopt, kNotANumber},
        {"1,000.50", false, K::Value, 1000.5, ""},
        {"1.000,50", false, K::Value, std::nullopt, kNotANumber},  // not 1.0005
        {"1.000,50", true, K::Value, 1000.5, ""},
        {"12,345,678", false, K::Value, 12345678, ""},
        {"1,2,3", false, K::Value, std::nullopt, kNotANumber},  // not 123
        {"1,2345", false, K::Value, std::nullopt, kNotANumber},
        {"1,22,333", false, K::Value, std::nullopt, kNotANumber},
        {"1234,567", false, K::Value, std::nullopt, kNotANumber},
        {" -2.5e3 ", false, K::Value, -2500, ""},
        {"+1E-2", false, K::Value, 0.01, ""},
        {".5", false, K::Value, 0.5, ""},
        {"", false, K::Value, std::nullopt, kNotANumber},
        {".", false, K::Value, std::nullopt, kNotANumber},
        {"nan", false, K::Value, std::nullopt, kNotANumber},
        {"--5", false, K::Value, std::nullopt, kNotANumber},
        {"1e", false, K::Value, std::nullopt, kNotANumber},
        {"1e+x", false, K::Value, std::nullopt, kNotANumber},
        {"0x10", false, K::Value, std::nullopt, kNotANumber},
        {"1e300", false, K::Value, 1e300, ""},
        {"1e400", false, K::Value, std::nullopt, kOutOfRange},   // beyond a double
        {"1e-400", false, K::Value, std::nullopt, kOutOfRange},  // would be stored as 0
        {"0", false, K::Positive, std::nullopt, "Must be above 0"},
        {"0,25", true, K::Positive, 0.25, ""},
        {"1", false, K::Payment, 1, ""},
        {"32767", false, K::Payment, 32767, ""},
        {"0", false, K::Payment, std::nullopt, kPayment},
        {"32768", false, K::Payment, std::nullopt, kPayment},
        {"2.5", false, K::Payment, std::nullopt, kPayment},
        {"2,147,483,647", false, K::GroupCount, 2147483647.0, ""},
        {"2147483648", false, K::GroupCount, std::nullopt, kCount},
        {"1.5", false, K::GroupCount, std::nullopt, kCount},
        {"-3", false, K::GroupCount, std::nullopt, kCount},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string("\"") + c.text + (c.commaRadix ? "\" with Comma Radix" : "\""));
        Preferences prefs = DefaultPreferences();
        prefs.SetCommaRadix(c.commaRadix);
        const FieldReading reading = ReadField(c.text, SyntaxOf(prefs), c.kind);
        EXPECT_EQ(reading.value, c.value);
        EXPECT_EQ(reading.problem, c.problem);
    }
}

}  // namespace
}  // namespace brinto
