#include "tool/describe/table.h"

namespace pondiff::tool {

static constexpr Field tftp_fields[] = {
    number(FIELD(GSystemTftpCfg, revision), counter),
    boolean(FIELD(GSystemTftpCfg, backup_on_conf_save), on_off("backup on save", "no backup on save")),
    boolean(FIELD(GSystemTftpCfg, backup_on_timer), on_off("backup on timer", "no backup on timer")),
    number(FIELD(GSystemTftpCfg, backup_on_timer_period), says("backup timer period <backup_on_timer_period>")),
    text(FIELD(GSystemTftpCfg, backup_uri), says("backup uri <backup_uri>")),
};
DESCRIBE(GSystemTftpCfg, tftp_record, tftp_fields);

static constexpr Field config_fields[] = {
    number(FIELD(GSystemConfigCfg, revision), counter),
    boolean(FIELD(GSystemConfigCfg, autosave), on_off("config autosave enable", "no config autosave enable")),
    number(FIELD(GSystemConfigCfg, autosave_hour), says("config autosave hour <autosave_hour>")),
};
DESCRIBE(GSystemConfigCfg, config_record, config_fields);

} // namespace pondiff::tool
