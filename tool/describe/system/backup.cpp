#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field tftp_fields[] = {
    number(FIELD(GSystemTftpCfg, revision)),
    boolean(FIELD(GSystemTftpCfg, backup_on_conf_save)),
    boolean(FIELD(GSystemTftpCfg, backup_on_timer)),
    number(FIELD(GSystemTftpCfg, backup_on_timer_period)),
    text(FIELD(GSystemTftpCfg, backup_uri)),
};
DESCRIBE(GSystemTftpCfg, tftp_record, tftp_fields);

static constexpr Field config_fields[] = {
    number(FIELD(GSystemConfigCfg, revision)),
    boolean(FIELD(GSystemConfigCfg, autosave)),
    number(FIELD(GSystemConfigCfg, autosave_hour)),
};
DESCRIBE(GSystemConfigCfg, config_record, config_fields);

} // namespace pondiff::tool
