#pragma once
// RecordHeader: the 80-byte key stored beside every record's payload. A record is found by the
// kind, index and name in its header, so the layout is part of the file format and never changes.
#include <cstddef>
#include <string_view>
#include <type_traits>

#include "engine/types.h"

namespace brinto {

// Record kinds. Kind 1 lives in the configuration table, every other kind in the state table.
namespace kind {
inline constexpr u32 Preferences = 1;
inline constexpr u32 CalcState = 2;
inline constexpr u32 Registers = 3;
inline constexpr u32 Macro = 4;
inline constexpr u32 UserKeys = 5;
inline constexpr u32 FrontEndSetting = 6;  // keyed by name: a front end's own setting, e.g. window geometry
}  // namespace kind

inline constexpr u16 kHeaderSize = 80;
inline constexpr u16 kHeaderFormat = 1;
inline constexpr u16 kNamedIndex = 65535;  // the index of a record that is keyed by name
inline constexpr std::size_t kMaxRecordName = 32;  // UTF-16 units, without the terminator

struct RecordHeader {
    u16 headerSize;
    u16 headerFormat;
    u32 reserved;
    u32 kind;
    u16 index;
    char16_t name[kMaxRecordName + 1];  // zero-terminated; the rest of the 80 bytes stay zero

    // The name up to its terminator (all 33 units when none is found, so a damaged header
    // cannot read past its end).
    std::u16string_view Name() const {
        std::size_t n = 0;
        while (n < kMaxRecordName + 1 && name[n] != u'\0') ++n;
        return {name, n};
    }
};

static_assert(std::is_trivially_copyable_v<RecordHeader>);
static_assert(sizeof(RecordHeader) == 80);
static_assert(offsetof(RecordHeader, headerSize) == 0);
static_assert(offsetof(RecordHeader, headerFormat) == 2);
static_assert(offsetof(RecordHeader, reserved) == 4);
static_assert(offsetof(RecordHeader, kind) == 8);
static_assert(offsetof(RecordHeader, index) == 12);
static_assert(offsetof(RecordHeader, name) == 14);

}  // namespace brinto
