#ifndef PON_COMMAND_FILE_GENERATOR_OPERATION_H
#define PON_COMMAND_FILE_GENERATOR_OPERATION_H

#include "pon/DataToCommandsConvertor.h"
#include "pon/DataToCommandsConvertor/key.h"
#include "pon/DataToCommandsConvertor/views.h"
#include "pon/diff_builder.h"
#include "pon/diff_builder/script.h"

namespace pondiff {

/// How the text of an operation ends: with its last command, or with "commit" when there is any text.
enum class Ending { plain, commit };

/// One exported operation, from an empty list and a zeroed key to the text that it returns.
class Operation {
  public:
    void go_to(View view);
    /// The text on the heap, for the caller. When an allocation has failed, null: nobody runs the script then, so
    /// `current_view` becomes what it was.
    char* finish(Ending ending);

    int key[key_slots] = {};
    Script script;

  private:
    const view_state before_ = current_view;
};

} // namespace pondiff

#endif
