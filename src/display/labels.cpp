#include "display/labels.h"

namespace brinto {

std::string_view LabelText(ValueTag tag) {
    for (const LabelRow& row : kLabelTable) {
        if (row.tag == tag) return row.text;
    }
    return {};
}

}  // namespace brinto
