#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field tftp_fields[] = {
    number(AT(GSystemTftpCfg, revision)),
    boolean(AT(GSystemTftpCfg, backup_on_conf_save)),
    boolean(AT(GSystemTftpCfg, backup_on_timer)),
    number(AT(GSystemTftpCfg, backup_on_timer_period)),
    text(AT(GSystemTftpCfg, backup_uri)),
};
DESCRIBE(GSystemTftpCfg, tftp_record, tftp_fields);

static constexpr Field config_fields[] = {
    number(AT(GSystemConfigCfg, revision)),
    boolean(AT(GSystemConfigCfg, autosave)),
    number(AT(GSystemConfigCfg, autosave_hour)),
};
DESCRIBE(GSystemConfigCfg, config_record, config_fields);

} // namespace pondiff::tool
