// "filter": one key through one of the core's key filters, so that a test can
// prove the page's own filters give the same code and the same beep.
#include "app/key_filters.h"
#include "web/screen_json.h"
#include "web/web_ops.h"

namespace morve::web {

namespace {

json filter(const json& request) {
    KeyFilter kind;
    if (!keyFilterNamed(stringMember(request, "kind"), kind))
        throw RequestError("filtro desconhecido: " + stringMember(request, "kind"));
    const FilteredKey k = applyKeyFilter(kind, intMember(request, "code"));
    return {{"code", k.code}, {"beep", k.beep}};
}

const RegisterOp registered("filter", filter);

}  // namespace

}  // namespace morve::web
