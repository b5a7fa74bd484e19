#pragma once
// The display's label table: the text shown beside a value for its tag (a unit, an integer
// format, a date or time kind, a financial or statistical result), the status labels, and the
// names of the physical constants, which the "Constants" list also shows.
#include <array>
#include <string_view>

#include "engine/value_tags.h"

namespace brinto {

struct LabelRow {
    ValueTag tag;
    std::string_view text;
};

// Rows in their stored order; lookups scan it, so the order carries no meaning (the duration
// settings sit between the two runs of unit names).
inline constexpr std::array kLabelTable = {
    LabelRow{ValueTag::Error, "error"},
    LabelRow{ValueTag::Count, "n"},
    LabelRow{ValueTag::SumX, "sum x"},
    LabelRow{ValueTag::SumX2, "sum x2"},
    LabelRow{ValueTag::SumY, "sum y"},
    LabelRow{ValueTag::SumY2, "sum y2"},
    LabelRow{ValueTag::SumXY, "sum xy"},
    LabelRow{ValueTag::MeanX, "mean x"},
    LabelRow{ValueTag::WeightedMean, "mean xw"},
    LabelRow{ValueTag::MeanY, "mean y"},
    LabelRow{ValueTag::SampleDeviationX, "s x"},
    LabelRow{ValueTag::SampleDeviationY, "s y"},
    LabelRow{ValueTag::PopulationDeviationX, "pop s x"},
    LabelRow{ValueTag::PopulationDeviationY, "pop s y"},
    LabelRow{ValueTag::EstimateX, "est x"},
    LabelRow{ValueTag::EstimateY, "est y"},
    LabelRow{ValueTag::Correlation, "r"},
    LabelRow{ValueTag::Slope, "m"},
    LabelRow{ValueTag::Cost, "cost"},
    LabelRow{ValueTag::Price, "price"},
    LabelRow{ValueTag::Margin, "margin"},
    LabelRow{ValueTag::Markup, "markup"},
    LabelRow{ValueTag::PerYear, "P/YR"},
    LabelRow{ValueTag::Nominal, "NOM%"},
    LabelRow{ValueTag::Effective, "EFF%"},
    LabelRow{ValueTag::Periods, "N"},
    LabelRow{ValueTag::YearlyRate, "I/YR"},
    LabelRow{ValueTag::Payment, "PMT"},
    LabelRow{ValueTag::PresentValue, "PV"},
    LabelRow{ValueTag::FutureValue, "FV"},
    LabelRow{ValueTag::Interest, "Int"},
    LabelRow{ValueTag::Principal, "Prin"},
    LabelRow{ValueTag::Balance, "Bal"},
    LabelRow{ValueTag::ReturnRate, "IRR/YR"},
    LabelRow{ValueTag::Start, "Start"},
    LabelRow{ValueTag::End, "End"},
    LabelRow{ValueTag::NetPresentValue, "NPV"},
    LabelRow{ValueTag::CashFlow, "CFj"},
    LabelRow{ValueTag::GroupCount, "Nj"},
    LabelRow{ValueTag::Calculating, "Calculating..."},
    LabelRow{ValueTag::Memory, "M"},
    LabelRow{ValueTag::Hms, "h.mmss"},
    LabelRow{ValueTag::Date, "date"},
    LabelRow{ValueTag::Time, "time"},
    LabelRow{ValueTag::DateTime, "dt"},
    LabelRow{ValueTag::Years, "years"},
    LabelRow{ValueTag::Months, "months"},
    LabelRow{ValueTag::Weeks, "weeks"},
    LabelRow{ValueTag::Days, "days"},
    LabelRow{ValueTag::Hours, "hours"},
    LabelRow{ValueTag::Minutes, "minutes"},
    LabelRow{ValueTag::Seconds, "seconds"},
    LabelRow{ValueTag::Frames, "frames"},
    LabelRow{ValueTag::Inches, "inches"},
    LabelRow{ValueTag::Feet, "feet"},
    LabelRow{ValueTag::Miles, "miles"},
    LabelRow{ValueTag::Meters, "meters"},
    LabelRow{ValueTag::Pounds, "pounds"},
    LabelRow{ValueTag::Ounces, "ounces"},
    LabelRow{ValueTag::Kilograms, "kg"},
    LabelRow{ValueTag::Grams, "grams"},
    LabelRow{ValueTag::InchesPerSecond, "in/s"},
    LabelRow{ValueTag::FeetPerSecond, "ft/s"},
    LabelRow{ValueTag::MetersPerSecond, "m/s"},
    LabelRow{ValueTag::MilesPerHour, "mi/h"},
    LabelRow{ValueTag::KilometersPerHour, "km/h"},
    LabelRow{ValueTag::CentimetersPerSecond, "cm/s"},
    LabelRow{ValueTag::SquareInches, "sq inches"},
    LabelRow{ValueTag::SquareFeet, "sq feet"},
    LabelRow{ValueTag::SquareMiles, "sq miles"},
    LabelRow{ValueTag::SquareMeters, "sq meters"},
    LabelRow{ValueTag::Gallons, "gallons"},
    LabelRow{ValueTag::Milliliters, "ml"},
    LabelRow{ValueTag::Liters, "liters"},
    LabelRow{ValueTag::FluidOunces, "fl. oz"},
    LabelRow{ValueTag::DegC, "deg C"},
    LabelRow{ValueTag::DegF, "deg F"},
    LabelRow{ValueTag::U8, "u8"},
    LabelRow{ValueTag::S8, "s8"},
    LabelRow{ValueTag::U16, "u16"},
    LabelRow{ValueTag::S16, "s16"},
    LabelRow{ValueTag::U32, "u32"},
    LabelRow{ValueTag::S32, "s32"},
    LabelRow{ValueTag::DaysPerYear, "dpy"},
    LabelRow{ValueTag::DaysPerMonth, "dpm"},
    LabelRow{ValueTag::DaysPerWeek, "dpw"},
    LabelRow{ValueTag::HoursPerDay, "hpd"},
    LabelRow{ValueTag::FramesPerSecond, "fps"},
    LabelRow{ValueTag::Centimeters, "cm"},
    LabelRow{ValueTag::Millimeters, "mm"},
    LabelRow{ValueTag::Yards, "yards"},
    LabelRow{ValueTag::Kilometers, "km"},
    LabelRow{ValueTag::NauticalMiles, "nmi"},
    LabelRow{ValueTag::SquareMillimeters, "sq mm"},
    LabelRow{ValueTag::SquareCentimeters, "sq cm"},
    LabelRow{ValueTag::SquareKilometers, "sq km"},
    LabelRow{ValueTag::SquareYards, "sq yards"},
    LabelRow{ValueTag::Acres, "acres"},
    LabelRow{ValueTag::Tons, "tons"},
    LabelRow{ValueTag::Milligrams, "mg"},
    LabelRow{ValueTag::Knots, "knots"},
    LabelRow{ValueTag::CubicMeters, "cubic m"},
    LabelRow{ValueTag::CubicCentimeters, "cubic cm"},
    LabelRow{ValueTag::CubicYards, "cubic yd"},
    LabelRow{ValueTag::CubicFeet, "cubic ft"},
    LabelRow{ValueTag::CubicInches, "cubic in"},
    LabelRow{ValueTag::Quarts, "quarts"},
    LabelRow{ValueTag::Pints, "pints"},
    LabelRow{ValueTag::Cups, "cups"},
    LabelRow{ValueTag::Tablespoons, "tbsp"},
    LabelRow{ValueTag::Teaspoons, "tsp"},
    LabelRow{ValueTag::GallonsUk, "gallons UK"},
    LabelRow{ValueTag::FluidOuncesUk, "fl. oz UK"},
    LabelRow{ValueTag::Avogadro, "Avogadro's number, NA"},
    LabelRow{ValueTag::Boltzmann, "Boltzmann constant, k"},
    LabelRow{ValueTag::MolarVolume, "Molar volume, Vm"},
    LabelRow{ValueTag::GasConstant, "Universal gas constant, R"},
    LabelRow{ValueTag::StandardTemperature, "Standard temperature, StdT"},
    LabelRow{ValueTag::StandardPressure, "Standard pressure, StdP"},
    LabelRow{ValueTag::StefanBoltzmann, "Stefan-Boltzmann constant"},
    LabelRow{ValueTag::SpeedOfLight, "Speed of light in vacuum, c"},
    LabelRow{ValueTag::Permittivity, "Permittivity of vacuum"},
    LabelRow{ValueTag::Permeability, "Permeability of vacuum"},
    LabelRow{ValueTag::Gravity, "Acceleration of gravity, g"},
    LabelRow{ValueTag::GravitationalConstant, "Gravitational constant, G"},
    LabelRow{ValueTag::Planck, "Planck's constant, h"},
    LabelRow{ValueTag::Dirac, "Dirac's constant, hbar"},
    LabelRow{ValueTag::ElectronCharge, "Electron charge, q"},
    LabelRow{ValueTag::ElectronMass, "Electron rest mass, me"},
    LabelRow{ValueTag::ChargeToMass, "q/me, qme"},
    LabelRow{ValueTag::ProtonMass, "Proton rest mass, mp"},
    LabelRow{ValueTag::ProtonElectronRatio, "mp/me, mpme"},
    LabelRow{ValueTag::FineStructure, "Fine structure constant"},
    LabelRow{ValueTag::FluxQuantum, "Magnetic flux quantum"},
    LabelRow{ValueTag::Faraday, "Faraday constant, F"},
    LabelRow{ValueTag::Rydberg, "Rydberg constant"},
    LabelRow{ValueTag::BohrRadius, "Bohr radius, a0"},
    LabelRow{ValueTag::BohrMagneton, "Bohr magneton"},
    LabelRow{ValueTag::NuclearMagneton, "Nuclear magneton"},
    LabelRow{ValueTag::PhotonWavelength, "Photon wavelength (ch/e)"},
    LabelRow{ValueTag::PhotonFrequency, "Photon frequency (e/h)"},
    LabelRow{ValueTag::ComptonWavelength, "Compton wavelength"},
    LabelRow{ValueTag::Wien, "Wien displacement constant, c3"},
    LabelRow{ValueTag::Dielectric, "Dielectric constant"},
    LabelRow{ValueTag::SiO2Dielectric, "SiO2 dielectric constant"},
    LabelRow{ValueTag::ReferenceIntensity, "Reference intensity, I0"},
};

consteval bool UniqueLabelCodes(const auto& table) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        for (std::size_t j = i + 1; j < table.size(); ++j) {
            if (table[i].tag == table[j].tag) return false;
        }
    }
    return true;
}
static_assert(kLabelTable.size() == 146, "the label table has 146 rows");
static_assert(UniqueLabelCodes(kLabelTable), "a label code appears twice");

// Every tag with a category is shown with its label.
consteval bool EveryCategorisedTagHasALabel() {
    for (const CategoryRun& run : kCategoryRuns) {
        for (u32 n = ToNumber(run.first); n <= ToNumber(run.last); ++n) {
            bool found = false;
            for (const LabelRow& row : kLabelTable) found = found || ToNumber(row.tag) == n;
            if (!found) return false;
        }
    }
    return true;
}
static_assert(EveryCategorisedTagHasALabel(), "a unit, duration, date or format tag has no label");

// The label text of a tag; empty when the tag has no label.
std::string_view LabelText(ValueTag tag);

}  // namespace brinto
