#include "pon/command_file_generator/operation.h"

#include "pon/diff_builder/rows.h"

namespace pondiff {

void Operation::go_to(View view)
{
    navigate({view, key, script});
}

char* Operation::finish(Ending ending)
{
    if (ending == Ending::commit && !script.empty()) {
        append(script, "commit");
    }
    char* const text = script.release();
    if (!text) {
        current_view = before_;
    }
    return text;
}

} // namespace pondiff
