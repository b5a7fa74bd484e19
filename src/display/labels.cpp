#include "display/labels.h"

namespace brinto {

std::string_view LabelText(u32 code) {
    for (const LabelRow& row : kLabelTable) {
        if (row.code == code) return row.text;
    }
    return {};
}

}  // namespace brinto
