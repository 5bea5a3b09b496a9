#pragma once
// A screen as the module declares it, for the page to build its form from.
#include <string>

#include <nlohmann/json.hpp>

#include "app/screen.h"

namespace morve::web {

nlohmann::json screenJson(const ScreenDecl& screen);

// "None", "PositiveNumber", "SignedNumber", "Digit": the key filters by name.
const char* keyFilterName(KeyFilter filter);
// False for a name that is none of them.
bool keyFilterNamed(const std::string& name, KeyFilter& filter);

}  // namespace morve::web
