// The one function the page calls: a JSON request in, a JSON answer out.
#include <emscripten.h>

#include <string>

#include "web/web_ops.h"

extern "C" EMSCRIPTEN_KEEPALIVE const char* morve_call(const char* request) {
    // The answer stays valid until the next call: the page copies it out at once.
    static std::string text;
    using morve::web::json;
    json reply;
    try {
        reply = morve::web::answer(json::parse(request ? request : ""));
    } catch (const json::exception& e) {
        reply = {{"error", std::string("pedido inválido: ") + e.what()}};
    }
    // Texts typed by the user may hold bytes that are not UTF-8: replaced, never thrown.
    text = reply.dump(-1, ' ', false, json::error_handler_t::replace);
    return text.c_str();
}
