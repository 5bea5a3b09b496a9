#pragma once
// The pieces of a press's outcome as JSON, the same for morve-calc's cases and for
// the web page's presses: the boxes shown, the effects on the screens, the texts
// of the boxes and the rows of the tables.
#include <vector>

#include <nlohmann/json.hpp>

#include "app/form_state.h"
#include "app/outcome.h"
#include "app/prompter.h"

namespace morve {

nlohmann::json messagesJson(const std::vector<Message>& messages);
nlohmann::json effectsJson(const std::vector<ScreenEffect>& effects);
nlohmann::json fieldsJson(const FormState& state);
nlohmann::json gridsJson(const FormState& state);

}  // namespace morve
