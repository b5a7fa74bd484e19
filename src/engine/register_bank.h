#pragma once
// RegisterBank: the numbered registers beside CalcState, saved as a 1616-byte image.
//   0..99    user registers, which are also the cash flows CF0..CF99
//   100..109 N, I/YR (NOM%), PV, PMT, FV, EFF%, P/YR, cost, price, margin/markup
//   110..115 the statistical sums: sum x, sum x2, sum y, sum y2, sum xy, n
//   116..118 date and time registers
//   119..123 the duration settings dpy, dpm, dpw, hpd, fps
#include <cstddef>
#include <type_traits>

#include "engine/types.h"

namespace brinto {

inline constexpr int kRegisterCount = 124;
inline constexpr int kUserRegisters = 100;
inline constexpr u16 kRegisterBankVersion = 7;

namespace reg {
inline constexpr int N = 100;
inline constexpr int IYr = 101;  // also NOM%
inline constexpr int PV = 102;
inline constexpr int PMT = 103;
inline constexpr int FV = 104;
inline constexpr int Eff = 105;
inline constexpr int PYr = 106;
inline constexpr int Cost = 107;
inline constexpr int Price = 108;
inline constexpr int Margin = 109;  // margin or markup, by status::Markup
inline constexpr int SumX = 110;
inline constexpr int SumX2 = 111;
inline constexpr int SumY = 112;
inline constexpr int SumY2 = 113;
inline constexpr int SumXY = 114;
inline constexpr int StatN = 115;
inline constexpr int DateFirst = 116;       // first of the date register group 116..123
inline constexpr int DaysPerYear = 119;     // "dpy"
inline constexpr int DaysPerMonth = 120;    // "dpm"
inline constexpr int DaysPerWeek = 121;     // "dpw"
inline constexpr int HoursPerDay = 122;     // "hpd"
inline constexpr int FramesPerSecond = 123; // "fps"
}  // namespace reg

struct RegisterBank {
    u16 version;
    i16 cashFlowCount;        // index of the last cash-flow entry; -1 when the list is empty
    u32 reserved0;
    u32 financeWords[2];      // cleared with everything else by Clear All
    u16 lastRegister;         // register last named by a register key, for the CFj key
    ValueTag tags[kUserRegisters];  // per user register: "CFj" once it holds a cash-flow entry
    u32 aux[kUserRegisters];  // per user register: the cash-flow group count Nj
    u32 reserved1;
    double values[kRegisterCount];
};

static_assert(std::is_trivially_copyable_v<RegisterBank>);
static_assert(sizeof(RegisterBank) == 1616);
static_assert(offsetof(RegisterBank, cashFlowCount) == 2);
static_assert(offsetof(RegisterBank, financeWords) == 8);
static_assert(offsetof(RegisterBank, lastRegister) == 16);
static_assert(offsetof(RegisterBank, tags) == 18);
static_assert(offsetof(RegisterBank, aux) == 220);
static_assert(offsetof(RegisterBank, values) == 624);

}  // namespace brinto
