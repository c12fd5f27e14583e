#include "tool/script.h"

#include "tool/language/reader.h"

#include <memory>

namespace pondiff::tool {

bool changes_nothing(std::string_view script, const GCfg& orig)
{
    const auto device = std::make_unique<GCfg>(orig);
    bool nothing = true;
    read_script(script, *device, [&nothing](const Line& line) {
        const bool names = line.kind == Line::Kind::setting && line.names_only;
        nothing = nothing && (line.kind == Line::Kind::move || names) && line.created.array == nullptr;
    });
    return nothing;
}

} // namespace pondiff::tool
