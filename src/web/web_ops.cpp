#include "web/web_ops.h"

#include <map>

namespace morve::web {

namespace {

std::map<std::string, OpHandler>& handlers() {
    static std::map<std::string, OpHandler> table;
    return table;
}

}  // namespace

RegisterOp::RegisterOp(const char* name, OpHandler handler) { handlers()[name] = handler; }

const json& member(const json& request, const char* name) {
    if (!request.is_object() || !request.contains(name)) throw RequestError(std::string("falta \"") + name + "\"");
    return request.at(name);
}

std::string stringMember(const json& request, const char* name) {
    const json& value = member(request, name);
    if (!value.is_string()) throw RequestError(std::string("\"") + name + "\" deve ser um texto");
    return value.get<std::string>();
}

int intMember(const json& request, const char* name) {
    const json& value = member(request, name);
    if (!value.is_number_integer()) throw RequestError(std::string("\"") + name + "\" deve ser um número inteiro");
    return value.get<int>();
}

json answer(const json& request) {
    try {
        const std::string op = stringMember(request, "op");
        const auto it = handlers().find(op);
        if (it == handlers().end()) throw RequestError("operação desconhecida: " + op);
        return it->second(request);
    } catch (const std::exception& e) {
        return {{"error", e.what()}};
    } catch (...) {
        return {{"error", "erro inesperado"}};
    }
}

}  // namespace morve::web
