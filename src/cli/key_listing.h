#pragma once
// brinto-cli explains its keys: the --list-keys listing, one key at the interactive "help NAME",
// and the names nearest to a mistyped token. Legends and meanings come from the table the desktop
// program draws its keys and tooltips from, so the two always say the same.
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/function_ids.h"

namespace brinto {

// The name brinto-cli takes for a key, or "#CODE" for a key that has none.
std::string KeyName(FunctionId id);

// Every key, one a line: "NAME CODE FAMILY LEGEND MEANING", with "(also ALIASES)" where it has aliases,
// under a "# KEYBOARD" heading for each keyboard's block (unshifted, then shifted), then the
// keypad shared by all keyboards, the keys on no keyboard, the commands and the constants.
void ListKeys(std::ostream& out);

// Several lines on a key (by name or alias), a command or a constant ("const:N"): its legend,
// meaning, code, and where it sits on the keyboards. False, with nothing written, for a name that
// is none of them.
bool DescribeName(std::string_view name, std::ostream& out);

// At most three key names, aliases, commands or `extra` words nearest to `word` (ignoring case),
// the nearest first; none when nothing is near.
std::vector<std::string_view> NearestNames(std::string_view word, std::span<const std::string_view> extra = {});

}  // namespace brinto
