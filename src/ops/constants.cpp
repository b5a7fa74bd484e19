#include "ops/constants.h"

#include "display/labels.h"

namespace brinto {

std::string_view ConstantName(int index) {
    if (index < 0 || index >= kConstantCount) return {};
    return LabelText(kPhysicalConstants[static_cast<std::size_t>(index)].name);
}

bool RecallConstant(Engine& e, int index, u16 topRow) {
    if (index < 0 || index >= kConstantCount) return false;
    const PhysicalConstant& c = kPhysicalConstants[static_cast<std::size_t>(index)];
    CalcState& s = e.state;
    e.RecallLift();
    e.SetX(c.value);
    e.SetXTag(c.tag);
    e.FinishEntry();
    s.constantsTopRow = topRow;
    // The list is not a key, so what the dispatcher does after a key is done here: a recalled
    // value is kept (the next number typed lifts it), and a preceding operator no longer counts
    // as the last key.
    s.status = static_cast<u16>((s.status | status::LiftEnabled) & ~(status::NoLift | status::KeepLift));
    ClearBits(s.engineFlags, flags::OperatorLast);
    e.dirty.state = true;
    e.RequestRedraw();
    return true;
}

}  // namespace brinto
