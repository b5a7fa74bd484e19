#pragma once
// The library of physical constants that the "Constants" list offers. Each is recalled into X
// like a recalled number, with a unit tag where it has one, so that the speed of light and the
// two rest masses can be converted with the unit keys. The names are label texts (codes 3600 to
// 3632), shown by the list in this order.
#include <array>
#include <string_view>

#include "engine/engine.h"

namespace brinto {

struct PhysicalConstant {
    u16 code;       // label code of the name
    double value;   // as listed, whatever unit convention it implies
    ValueTag tag;   // 0, or the unit the value is in
};

inline constexpr std::array kPhysicalConstants = {
    PhysicalConstant{3600, 6.0221367e23, 0},         // Avogadro's number
    PhysicalConstant{3601, 1.380658e-23, 0},         // Boltzmann constant
    PhysicalConstant{3602, 22.4141, 0},              // molar volume
    PhysicalConstant{3603, 8.31451, 0},              // universal gas constant
    PhysicalConstant{3604, 273.15, 0},               // standard temperature
    PhysicalConstant{3605, 101.325, 0},              // standard pressure
    PhysicalConstant{3606, 5.67051e-08, 0},          // Stefan-Boltzmann constant
    PhysicalConstant{3607, 299792458.0, 1910},       // speed of light, m/s
    PhysicalConstant{3608, 8.85418781761e-12, 0},    // permittivity of vacuum
    PhysicalConstant{3609, 1.25663706144e-06, 0},    // permeability of vacuum
    PhysicalConstant{3610, 9.80665, 0},              // acceleration of gravity
    PhysicalConstant{3611, 6.67259e-11, 0},          // gravitational constant
    PhysicalConstant{3612, 6.6260755e-34, 0},        // Planck's constant
    PhysicalConstant{3613, 1.05457266e-34, 0},       // Dirac's constant
    PhysicalConstant{3614, 1.60217733e-19, 0},       // electron charge
    PhysicalConstant{3615, 9.1093897e-31, 1906},     // electron rest mass, kg
    PhysicalConstant{3616, 175881962000.0, 0},       // q/me
    PhysicalConstant{3617, 1.6726231e-27, 1906},     // proton rest mass, kg
    PhysicalConstant{3618, 1836.152701, 0},          // mp/me
    PhysicalConstant{3619, 0.00729735308, 0},        // fine structure constant
    PhysicalConstant{3620, 2.06783461e-15, 0},       // magnetic flux quantum
    PhysicalConstant{3621, 96485.309, 0},            // Faraday constant
    PhysicalConstant{3622, 10973731.534, 0},         // Rydberg constant
    PhysicalConstant{3623, 0.0529177249, 0},         // Bohr radius
    PhysicalConstant{3624, 9.2740154e-24, 0},        // Bohr magneton
    PhysicalConstant{3625, 5.0507866e-27, 0},        // nuclear magneton
    PhysicalConstant{3626, 1239.8425, 0},            // photon wavelength (ch/e)
    PhysicalConstant{3627, 241798830000000.0, 0},    // photon frequency (e/h)
    PhysicalConstant{3628, 0.00242631058, 0},        // Compton wavelength
    PhysicalConstant{3629, 0.002897756, 0},          // Wien displacement constant
    PhysicalConstant{3630, 11.9, 0},                 // dielectric constant
    PhysicalConstant{3631, 3.9, 0},                  // SiO2 dielectric constant
    PhysicalConstant{3632, 1e-12, 0},                // reference intensity
};

consteval bool CodesRunFrom3600() {
    for (std::size_t i = 0; i < kPhysicalConstants.size(); ++i) {
        if (kPhysicalConstants[i].code != 3600 + i) return false;
    }
    return true;
}
static_assert(kPhysicalConstants.size() == 33, "the list holds 33 constants");
static_assert(CodesRunFrom3600(), "the constants' label codes run 3600..3632 in list order");

inline constexpr int kConstantCount = static_cast<int>(kPhysicalConstants.size());

// The name the list shows for constant `index` (0..32); empty for any other index.
std::string_view ConstantName(int index);

// The list's OK: constant `index` goes into X as a recalled value (lifting by the recall rule),
// with its tag; the number being typed is closed, Last X is left alone, and `topRow`, the list's
// first visible row, is remembered for the next time the list opens. False, changing nothing,
// for an index outside 0..32.
bool RecallConstant(Engine& e, int index, u16 topRow);

}  // namespace brinto
