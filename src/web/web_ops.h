#pragma once
// The page asks the core through one function, morve_call, with a JSON request
// whose "op" names the operation. Each operation registers itself from its own
// file, as modules do, so that a new one is a new file and nothing else changes.
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

namespace morve::web {

using nlohmann::json;

// A request that cannot be answered as asked; the page gets {"error": what()}.
class RequestError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

using OpHandler = json (*)(const json& request);

struct RegisterOp {
    RegisterOp(const char* name, OpHandler handler);
};

// The answer to a request, {"error": ...} for one that fails in any way.
json answer(const json& request);

// A member of a request, of the type asked; RequestError names what is missing.
const json& member(const json& request, const char* name);
std::string stringMember(const json& request, const char* name);
int intMember(const json& request, const char* name);

}  // namespace morve::web
