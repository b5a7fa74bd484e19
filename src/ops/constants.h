#pragma once
// The library of physical constants that the "Constants" list offers. Each is recalled into X
// like a recalled number, with a unit tag where it has one, so that the speed of light and the
// two rest masses can be converted with the unit keys. The names are label texts, shown by the
// list in this order.
#include <array>
#include <string_view>

#include "engine/engine.h"

namespace brinto {

struct PhysicalConstant {
    ValueTag name;  // the label that names it
    double value;   // as listed, whatever unit convention it implies
    ValueTag tag;   // none, or the unit the value is in
};

inline constexpr std::array kPhysicalConstants = {
    PhysicalConstant{ValueTag::Avogadro, 6.0221367e23, ValueTag::None},
    PhysicalConstant{ValueTag::Boltzmann, 1.380658e-23, ValueTag::None},
    PhysicalConstant{ValueTag::MolarVolume, 22.4141, ValueTag::None},
    PhysicalConstant{ValueTag::GasConstant, 8.31451, ValueTag::None},
    PhysicalConstant{ValueTag::StandardTemperature, 273.15, ValueTag::None},
    PhysicalConstant{ValueTag::StandardPressure, 101.325, ValueTag::None},
    PhysicalConstant{ValueTag::StefanBoltzmann, 5.67051e-08, ValueTag::None},
    PhysicalConstant{ValueTag::SpeedOfLight, 299792458.0, ValueTag::MetersPerSecond},
    PhysicalConstant{ValueTag::Permittivity, 8.85418781761e-12, ValueTag::None},
    PhysicalConstant{ValueTag::Permeability, 1.25663706144e-06, ValueTag::None},
    PhysicalConstant{ValueTag::Gravity, 9.80665, ValueTag::None},
    PhysicalConstant{ValueTag::GravitationalConstant, 6.67259e-11, ValueTag::None},
    PhysicalConstant{ValueTag::Planck, 6.6260755e-34, ValueTag::None},
    PhysicalConstant{ValueTag::Dirac, 1.05457266e-34, ValueTag::None},
    PhysicalConstant{ValueTag::ElectronCharge, 1.60217733e-19, ValueTag::None},
    PhysicalConstant{ValueTag::ElectronMass, 9.1093897e-31, ValueTag::Kilograms},
    PhysicalConstant{ValueTag::ChargeToMass, 175881962000.0, ValueTag::None},
    PhysicalConstant{ValueTag::ProtonMass, 1.6726231e-27, ValueTag::Kilograms},
    PhysicalConstant{ValueTag::ProtonElectronRatio, 1836.152701, ValueTag::None},
    PhysicalConstant{ValueTag::FineStructure, 0.00729735308, ValueTag::None},
    PhysicalConstant{ValueTag::FluxQuantum, 2.06783461e-15, ValueTag::None},
    PhysicalConstant{ValueTag::Faraday, 96485.309, ValueTag::None},
    PhysicalConstant{ValueTag::Rydberg, 10973731.534, ValueTag::None},
    PhysicalConstant{ValueTag::BohrRadius, 0.0529177249, ValueTag::None},
    PhysicalConstant{ValueTag::BohrMagneton, 9.2740154e-24, ValueTag::None},
    PhysicalConstant{ValueTag::NuclearMagneton, 5.0507866e-27, ValueTag::None},
    PhysicalConstant{ValueTag::PhotonWavelength, 1239.8425, ValueTag::None},
    PhysicalConstant{ValueTag::PhotonFrequency, 241798830000000.0, ValueTag::None},
    PhysicalConstant{ValueTag::ComptonWavelength, 0.00242631058, ValueTag::None},
    PhysicalConstant{ValueTag::Wien, 0.002897756, ValueTag::None},
    PhysicalConstant{ValueTag::Dielectric, 11.9, ValueTag::None},
    PhysicalConstant{ValueTag::SiO2Dielectric, 3.9, ValueTag::None},
    PhysicalConstant{ValueTag::ReferenceIntensity, 1e-12, ValueTag::None},
};

// The list is read by position (const:N), and a position names the constant for good.
consteval bool NamesRunInListOrder() {
    for (std::size_t i = 0; i < kPhysicalConstants.size(); ++i) {
        if (ToNumber(kPhysicalConstants[i].name) != ToNumber(ValueTag::Avogadro) + i) return false;
    }
    return true;
}
static_assert(kPhysicalConstants.size() == 33, "the list holds 33 constants");
static_assert(NamesRunInListOrder(), "the constants' names run in list order");

inline constexpr int kConstantCount = static_cast<int>(kPhysicalConstants.size());

// The name the list shows for constant `index` (0..32); empty for any other index.
std::string_view ConstantName(int index);

// The list's OK: constant `index` goes into X as a recalled value (lifting by the recall rule),
// with its tag; the number being typed is closed, Last X is left alone, and `topRow`, the list's
// first visible row, is remembered for the next time the list opens. False, changing nothing,
// for an index outside 0..32.
bool RecallConstant(Engine& e, int index, u16 topRow);

}  // namespace brinto
