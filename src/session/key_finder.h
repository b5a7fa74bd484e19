#pragma once
// The key finder: a key looked up by what a user types for it, for the keys that have no
// keyboard key of their own. It takes brinto-cli's key names and aliases (`sqrt`, `x^2`, `pv`),
// and also a key's full name ("Square root") and its face ("√x"), ignoring case; while the user
// types, it offers the keys whose name, alias or full name starts with, or whose full name holds,
// the text typed.
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/function_ids.h"

namespace brinto {

struct KeyChoice {
    FunctionId id;
    std::string_view name;      // brinto-cli's name for the key
    std::string_view fullName;  // what the key does, as its tooltip says
    std::string_view face;      // what is printed on the key
};

// A key's full name as a translated window shows it, from the English one; empty: English only.
using ShownMeaning = std::function<std::string(std::string_view fullName)>;

// The key `typed` names exactly: a brinto-cli name or alias first, then a full name (in English or
// as `shown` gives it), then a face that only one key wears. Nothing for text that names no key
// (or, as a face, several).
std::optional<FunctionId> FindKey(std::string_view typed, const ShownMeaning& shown = {});

// The keys offered for `typed`, best first: an exact name, then names, aliases and full names
// that start with it, then full names that hold it (full names in English and as `shown` gives
// them); at most `limit`, each key once. Blank text offers nothing.
std::vector<KeyChoice> OfferKeys(std::string_view typed, std::size_t limit, const ShownMeaning& shown = {});

}  // namespace brinto
