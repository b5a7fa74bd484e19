#pragma once
// UserKeyMap: the functions assigned to the User keyboard, saved as a 96-byte image.
#include <type_traits>

#include "engine/function_ids.h"

namespace brinto {

struct UserKeyMap {
    FunctionId keys[24];  // 0..11 unshifted, 12..23 shifted; kNoKey where nothing is assigned
};

static_assert(std::is_trivially_copyable_v<UserKeyMap>);
static_assert(sizeof(UserKeyMap) == 96);

inline UserKeyMap EmptyUserKeyMap() {
    UserKeyMap map{};
    for (FunctionId& k : map.keys) k = kNoKey;
    return map;
}

}  // namespace brinto
