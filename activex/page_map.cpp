// The page of each kind by its class.
#include "activex/page_map.h"

#include "activex/guids.h"

namespace vela::activex {

const CLSID& pageClass(pages::PageKind page) noexcept
{
    using enum pages::PageKind;
    switch (page) {
    case ppPrincipal: return principalPage;
    case ppGeral: return geralPage;
    case ppErros: return errosPage;
    case ppFonte: return fontePage;
    case ppCalendario: break;
    }
    return calendarioPage;
}

} // namespace vela::activex
