#pragma once
// The display's label table: the text shown beside a value for its tag (a unit, an integer
// format, a date or time kind, a financial or statistical result), the status labels, and the
// names of the physical constants, which the "Constants" list also shows.
#include <array>
#include <string_view>

#include "engine/types.h"

namespace brinto {

struct LabelRow {
    u16 code;
    std::string_view text;
};

// Rows in their stored order; lookups scan it, so the order carries no meaning (the duration
// settings 2500..2504 sit between the two runs of unit names).
inline constexpr std::array kLabelTable = {
    LabelRow{1200, "error"},
    LabelRow{1300, "n"},
    LabelRow{1301, "sum x"},
    LabelRow{1302, "sum x2"},
    LabelRow{1303, "sum y"},
    LabelRow{1304, "sum y2"},
    LabelRow{1305, "sum xy"},
    LabelRow{1306, "mean x"},
    LabelRow{1307, "mean xw"},
    LabelRow{1308, "mean y"},
    LabelRow{1309, "s x"},
    LabelRow{1310, "s y"},
    LabelRow{1311, "pop s x"},
    LabelRow{1312, "pop s y"},
    LabelRow{1313, "est x"},
    LabelRow{1314, "est y"},
    LabelRow{1315, "r"},
    LabelRow{1316, "m"},
    LabelRow{1400, "cost"},
    LabelRow{1401, "price"},
    LabelRow{1402, "margin"},
    LabelRow{1403, "markup"},
    LabelRow{1404, "P/YR"},
    LabelRow{1405, "NOM%"},
    LabelRow{1406, "EFF%"},
    LabelRow{1407, "N"},
    LabelRow{1408, "I/YR"},
    LabelRow{1409, "PMT"},
    LabelRow{1410, "PV"},
    LabelRow{1411, "FV"},
    LabelRow{1412, "Int"},
    LabelRow{1413, "Prin"},
    LabelRow{1414, "Bal"},
    LabelRow{1415, "IRR/YR"},
    LabelRow{1416, "Start"},
    LabelRow{1417, "End"},
    LabelRow{1418, "NPV"},
    LabelRow{1419, "CFj"},
    LabelRow{1420, "Nj"},
    LabelRow{1500, "Calculating..."},
    LabelRow{1600, "M"},
    LabelRow{1800, "h.mmss"},
    LabelRow{1801, "date"},
    LabelRow{1802, "time"},
    LabelRow{1803, "dt"},
    LabelRow{1804, "years"},
    LabelRow{1805, "months"},
    LabelRow{1806, "weeks"},
    LabelRow{1807, "days"},
    LabelRow{1808, "hours"},
    LabelRow{1809, "minutes"},
    LabelRow{1810, "seconds"},
    LabelRow{1811, "frames"},
    LabelRow{1900, "inches"},
    LabelRow{1901, "feet"},
    LabelRow{1902, "miles"},
    LabelRow{1903, "meters"},
    LabelRow{1904, "pounds"},
    LabelRow{1905, "ounces"},
    LabelRow{1906, "kg"},
    LabelRow{1907, "grams"},
    LabelRow{1908, "in/s"},
    LabelRow{1909, "ft/s"},
    LabelRow{1910, "m/s"},
    LabelRow{1911, "mi/h"},
    LabelRow{1912, "km/h"},
    LabelRow{1913, "cm/s"},
    LabelRow{1914, "sq inches"},
    LabelRow{1915, "sq feet"},
    LabelRow{1916, "sq miles"},
    LabelRow{1917, "sq meters"},
    LabelRow{1918, "gallons"},
    LabelRow{1919, "ml"},
    LabelRow{1920, "liters"},
    LabelRow{1921, "fl. oz"},
    LabelRow{1922, "deg C"},
    LabelRow{1923, "deg F"},
    LabelRow{1924, "u8"},
    LabelRow{1925, "s8"},
    LabelRow{1926, "u16"},
    LabelRow{1927, "s16"},
    LabelRow{1928, "u32"},
    LabelRow{1929, "s32"},
    LabelRow{2500, "dpy"},
    LabelRow{2501, "dpm"},
    LabelRow{2502, "dpw"},
    LabelRow{2503, "hpd"},
    LabelRow{2504, "fps"},
    LabelRow{1930, "cm"},
    LabelRow{1931, "mm"},
    LabelRow{1932, "yards"},
    LabelRow{1933, "km"},
    LabelRow{1934, "nmi"},
    LabelRow{1935, "sq mm"},
    LabelRow{1936, "sq cm"},
    LabelRow{1937, "sq km"},
    LabelRow{1938, "sq yards"},
    LabelRow{1939, "acres"},
    LabelRow{1940, "tons"},
    LabelRow{1941, "mg"},
    LabelRow{1942, "knots"},
    LabelRow{1943, "cubic m"},
    LabelRow{1944, "cubic cm"},
    LabelRow{1945, "cubic yd"},
    LabelRow{1946, "cubic ft"},
    LabelRow{1947, "cubic in"},
    LabelRow{1948, "quarts"},
    LabelRow{1949, "pints"},
    LabelRow{1950, "cups"},
    LabelRow{1951, "tbsp"},
    LabelRow{1952, "tsp"},
    LabelRow{1953, "gallons UK"},
    LabelRow{1954, "fl. oz UK"},
    LabelRow{3600, "Avogadro's number, NA"},
    LabelRow{3601, "Boltzmann constant, k"},
    LabelRow{3602, "Molar volume, Vm"},
    LabelRow{3603, "Universal gas constant, R"},
    LabelRow{3604, "Standard temperature, StdT"},
    LabelRow{3605, "Standard pressure, StdP"},
    LabelRow{3606, "Stefan-Boltzmann constant"},
    LabelRow{3607, "Speed of light in vacuum, c"},
    LabelRow{3608, "Permittivity of vacuum"},
    LabelRow{3609, "Permeability of vacuum"},
    LabelRow{3610, "Acceleration of gravity, g"},
    LabelRow{3611, "Gravitational constant, G"},
    LabelRow{3612, "Planck's constant, h"},
    LabelRow{3613, "Dirac's constant, hbar"},
    LabelRow{3614, "Electron charge, q"},
    LabelRow{3615, "Electron rest mass, me"},
    LabelRow{3616, "q/me, qme"},
    LabelRow{3617, "Proton rest mass, mp"},
    LabelRow{3618, "mp/me, mpme"},
    LabelRow{3619, "Fine structure constant"},
    LabelRow{3620, "Magnetic flux quantum"},
    LabelRow{3621, "Faraday constant, F"},
    LabelRow{3622, "Rydberg constant"},
    LabelRow{3623, "Bohr radius, a0"},
    LabelRow{3624, "Bohr magneton"},
    LabelRow{3625, "Nuclear magneton"},
    LabelRow{3626, "Photon wavelength (ch/e)"},
    LabelRow{3627, "Photon frequency (e/h)"},
    LabelRow{3628, "Compton wavelength"},
    LabelRow{3629, "Wien displacement constant, c3"},
    LabelRow{3630, "Dielectric constant"},
    LabelRow{3631, "SiO2 dielectric constant"},
    LabelRow{3632, "Reference intensity, I0"},
};

consteval bool UniqueLabelCodes(const auto& table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        for (std::size_t j = i + 1; j < table.size(); ++j) {
            if (table[i].code == table[j].code) return false;
        }
    }
    return true;
}
static_assert(kLabelTable.size() == 146, "the label table has 146 rows");
static_assert(UniqueLabelCodes(kLabelTable), "a label code appears twice");

// The label text of a code; empty when the code has no label.
std::string_view LabelText(u32 code);

}  // namespace brinto
