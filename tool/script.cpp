#include "tool/script.h"

#include "pon/command_file_generator.h"

#include <cstdlib>
#include <memory>
#include <new>

namespace pondiff::tool {

namespace {

class Session {
  public:
    Session(const ScriptRequest& request, GCfg& running, GCfg& wanted)
    {
        if (initiate_diff(&running, &wanted, request.all, request.common) != 0) {
            throw std::bad_alloc();
        }
    }
    ~Session() { finalize_diff(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
};

} // namespace

std::string script_of(const ScriptRequest& request, GCfg& running, GCfg& wanted)
{
    const Session session{request, running, wanted};
    const std::unique_ptr<char, decltype(&std::free)> text{request.area.script(running, wanted), &std::free};
    if (!text) {
        throw std::bad_alloc();
    }
    return text.get();
}

} // namespace pondiff::tool
