#include "pon/command_file_generator.h"
#include "pon/command_file_generator/full_diff.h"
#include "pon/command_file_generator/operation.h"

FILE* file_to_dump;

namespace {

/// Makes the caller's stream visible in `file_to_dump` during an operation.
class PublishedStream {
  public:
    explicit PublishedStream(FILE* file)
    {
        if (file) {
            file_to_dump = file;
        }
    }
    ~PublishedStream() { file_to_dump = nullptr; }
    PublishedStream(const PublishedStream&) = delete;
    PublishedStream& operator=(const PublishedStream&) = delete;
};

} // namespace

char* GetDiffMemSafe(GCfg_t* orig, GCfg_t* cfg, FILE* file)
{
    const PublishedStream stream(file);
    return pondiff::full_diff(orig, cfg, pondiff::CommonSet::without_cli_and_source_guard);
}

char* GetRoutesDiffMemSafe(GSystemRoutingCfg_t* orig, GSystemRoutingCfg_t* cfg, FILE* file)
{
    const PublishedStream stream(file);
    pondiff::Operation operation;
    getdiff_GSystemRoutingCfg(orig, cfg, operation.key, operation.script);
    operation.go_to(pondiff::View::root);
    return operation.finish(pondiff::Ending::commit);
}
