#ifndef PON_DIFF_BUILDER_H
#define PON_DIFF_BUILDER_H

/// @file
/// The command list, the formatting of field values, and one record diff for each configuration record.
///
/// A record diff takes the old record (`lhs`), the new one (`rhs`), the key (ten identifiers of the enclosing objects)
/// and the list that it appends to. Unless `print_all` is set it returns at once when the two are equal byte for byte.
/// For each command it pushes the navigation to the command's view, empty when the script is already there, and then
/// the command. The return value has no meaning. Records are only read, except that selective-tunnel lists are sorted.
/// When an allocation for a navigation or a command fails, that command is left out; no other command is ever emitted
/// in a wrong view.

#include "gcfg/gcfg.h"
#include "pon/visibility.h"

PON_EXPORTS_BEGIN

// ------------------------------------------------------------------------------------------------------- switches

/// Non-zero: record diffs render what is equal, too, except for what <pondiff.h> lists under `need_all_cfg`.
/// Initially 0; set by `initiate_diff`.
extern int print_all;
/// What a full diff shows: at exactly 1, the initial value, the common records only. With `print_all`, the
/// values 1 and 2 force the common settings, 2 the default relay profiles too.
extern int print_common;

// --------------------------------------------------------------------------------------------------- command list

template <class T>
struct ListElem {
    T* elem;
    ListElem* next;
};

/// The fragments of a script in the order in which they are emitted. Used as `List<char>` alone: each element is a
/// NUL-terminated heap text. The list owns its nodes, never the texts: the code that walks it frees them.
template <class T>
class List {
  public:
    ListElem<T>* first = nullptr;
    ListElem<T>* last = nullptr;
    int lsize = 0;

    List();
    ~List();
    List(const List&) = delete;
    List& operator=(const List&) = delete;

    /// @return false when the allocation of a node fails: the text still belongs to the caller
    bool push_back(T* elem);
    ListElem<T>* begin();
    int size();
    /// Frees every node, not the texts.
    void clear();
    /// Unlinks one node and frees it, not its text; does nothing for a node that is not in the list.
    void delete_elem(ListElem<T>* node);
};

extern template class List<char>;

// ----------------------------------------------------------------------------------------------------- formatting

/// Each returns a new zero-filled text that the caller releases with `free`; null when the allocation fails.
char* u32_tostr(unsigned int value);
char* u16_tostr(unsigned short value);
char* int_tostr(int value);
char* u64_tostr(unsigned long long value);
char* double_tostr(double value);
char* int_tostr_or_unused(int value);             ///< "unused" for -1
char* BerInterval_tostr(unsigned int value);      ///< "none" for 0xFFFFFFFF
char* u64_tostr_hex(unsigned long long value);    ///< 0x and as many digits as needed
char* u32_tostr_hex(unsigned int value);          ///< the same
char* u16_tostr_hex(unsigned short value);        ///< 0x and four digits
char* int_3byte_tostr_hex(int value);             ///< 0x and at least six digits
char* int_tostr_hex(int value);                   ///< 0x and eight digits
char* GIPAddr_t_tostr(unsigned char* address);    ///< 4 bytes, dotted
char* GMACAddr_t_tostr(unsigned char* address);   ///< 6 bytes
char* GOntSerial_t_tostr(unsigned char* serial);  ///< 8 bytes, in the layout that `sn_format` selects
char* GSNMPEngineID_t_tostr(unsigned char* id);   ///< 13 bytes
char* GOntPassword_t_tostr(char* password);       ///< at most the first 10 characters
char* GEncryptionKey_t_tostr(unsigned char* key); ///< a NUL-terminated text
/// The word of the low 16 bits of `value` in the vocabulary `type`, such as "GBool_enum".
char* Enum_tostr(char* type, int value);
/// The values of an array, separated by commas.
char* convertarrayu8tostr(unsigned char* values, int count);
char* convertarrays16tostr(short* values, int count);

/// Writes `replacement` over every occurrence of `needle`, each search starting at the beginning of the text. The rest
/// of the text does not move: useful when both have the same length. Nothing is written past the text's end. A
/// replacement that contains the needle is not searched again.
void str_replace(char* text, const char* needle, const char* replacement);

// --------------------------------------------------------------------------------------------------- record diffs

// system/: key[0]: the index of the user, entry, trap, alias, alarm, submodule, route, binding or VLAN
bool getdiff_GSystemCfg(GSystemCfg* lhs, GSystemCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemServices(GSystemServices* lhs, GSystemServices* rhs, int* key, List<char>& out);
bool getdiff_GSystemNetworkCfg(GSystemNetworkCfg* lhs, GSystemNetworkCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemMgmtCfg(GSystemNetworkCfg* lhs, GSystemNetworkCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemAcsMgmtCfg(GSystemNetworkCfg* lhs, GSystemNetworkCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemCommonSettings(GSystemCommonSettings* lhs, GSystemCommonSettings* rhs, int* key, List<char>& out);
bool getdiff_GSystemUser(GSystemUser* lhs, GSystemUser* rhs, int* key, List<char>& out);
bool getdiff_GSystemUserGroup(GSystemUserGroup* lhs, GSystemUserGroup* rhs, int* key, List<char>& out);
/// @param prefix  the service as its commands begin, such as "ip ssh"
bool getdiff_GSystemServiceAllow(char* prefix, GSystemServiceAllow* lhs, GSystemServiceAllow* rhs, int* key,
                                 List<char>& out);
bool getdiff_GSystemHttpCfg(GSystemHttpCfg* lhs, GSystemHttpCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemHttpsCfg(GSystemHttpsCfg* lhs, GSystemHttpsCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemTelnetCfg(GSystemTelnetCfg* lhs, GSystemTelnetCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemSshCfg(GSystemSshCfg* lhs, GSystemSshCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemRoutingCfg(GSystemRoutingCfg* lhs, GSystemRoutingCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemRouteCfg(GSystemRouteCfg* lhs, GSystemRouteCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemSourceGuardCfg(GSystemSourceGuardCfg* lhs, GSystemSourceGuardCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemSourceGuardBindCfg(GSystemSourceGuardBindCfg* lhs, GSystemSourceGuardBindCfg* rhs, int* key,
                                       List<char>& out);
bool getdiff_GSystemSourceGuardCfgVlanAllowed(GSystemSourceGuardCfgVlanAllowed* lhs,
                                              GSystemSourceGuardCfgVlanAllowed* rhs, int* key, List<char>& out);
bool getdiff_GSystemSnmpCfg(GSystemSnmpCfg* lhs, GSystemSnmpCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemSnmpTrap(GSystemSnmpTrap* lhs, GSystemSnmpTrap* rhs, int* key, List<char>& out);
bool getdiff_GSystemSnmpAlias(GSystemSnmpAlias* lhs, GSystemSnmpAlias* rhs, int* key, List<char>& out);
bool getdiff_GSystemSyslogCfg(GSystemSyslogCfg* lhs, GSystemSyslogCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemLogDestCfg(GSystemLogDestCfg* lhs, GSystemLogDestCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemLogCfg(GSystemLogCfg* lhs, GSystemLogCfg* rhs, int* key, List<char>& out);
bool getdiff_GSubmoduleLogCfg(GSubmoduleLogCfg* lhs, GSubmoduleLogCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemNtpCfg(GSystemNtpCfg* lhs, GSystemNtpCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemAlarmCfg(GSystemAlarmCfg* lhs, GSystemAlarmCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemAlarmTypeCfg(GSystemAlarmTypeCfg* lhs, GSystemAlarmTypeCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemAlarmSystemCfg(GSystemAlarmSystemCfg* lhs, GSystemAlarmSystemCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemCliCfg(GSystemCliCfg* lhs, GSystemCliCfg* rhs, int* key, List<char>& out);
bool getdiff_GCustomOntListShowing(GCustomOntListShowing* lhs, GCustomOntListShowing* rhs, int* key, List<char>& out);
bool getdiff_GSystemTftpCfg(GSystemTftpCfg* lhs, GSystemTftpCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemConfigCfg(GSystemConfigCfg* lhs, GSystemConfigCfg* rhs, int* key, List<char>& out);
bool getdiff_GSystemWebCfg(GSystemWebCfg* lhs, GSystemWebCfg* rhs, int* key, List<char>& out);

// network/: key[0]: the slot of the terminal VLAN
bool getdiff_GPonNetworkCfg(GPonNetworkCfg* lhs, GPonNetworkCfg* rhs, int* key, List<char>& out);
bool getdiff_GVlanTagEx(GVlanTagEx* lhs, GVlanTagEx* rhs, int* key, List<char>& out);

// olt/: key[0]: the GPON port, or the index of the entry
bool getdiff_GPonOltCfg(GPonOltCfg* lhs, GPonOltCfg* rhs, int* key, List<char>& out);
bool getdiff_GPonOltGeneralCfg(GPonOltGeneralCfg* lhs, GPonOltGeneralCfg* rhs, int* key, List<char>& out);
bool getdiff_GPonOltGeneralActivationCfg(GPonOltGeneralActivationCfg* lhs, GPonOltGeneralActivationCfg* rhs, int* key,
                                         List<char>& out);
bool getdiff_GPonOltGeneralRedundancyCfg(GPonOltGeneralRedundancyCfg* lhs, GPonOltGeneralRedundancyCfg* rhs, int* key,
                                         List<char>& out);
bool getdiff_GPonOltGeneralL3Cfg(GPonOltGeneralL3Cfg* lhs, GPonOltGeneralL3Cfg* rhs, int* key, List<char>& out);
bool getdiff_GPonOltGeneralL3DHCPCfg(GPonOltGeneralL3DHCPCfg* lhs, GPonOltGeneralL3DHCPCfg* rhs, int* key,
                                     List<char>& out);
bool getdiff_GPonOltGeneralL3PPPoECfg(GPonOltGeneralL3PPPoECfg* lhs, GPonOltGeneralL3PPPoECfg* rhs, int* key,
                                      List<char>& out);
bool getdiff_GPonOltDhcpraCfgByVid(GPonOltDhcpraCfgByVid* lhs, GPonOltDhcpraCfgByVid* rhs, int* key, List<char>& out);
bool getdiff_GPonOltDhcpv6raCfgByVid(GPonOltDhcpv6raCfgByVid* lhs, GPonOltDhcpv6raCfgByVid* rhs, int* key,
                                     List<char>& out);
bool getdiff_GPonOltGeneralDBAShortCycleCfg(GPonOltGeneralDBAShortCycle* lhs, GPonOltGeneralDBAShortCycle* rhs,
                                            int* key, List<char>& out);
bool getdiff_GPonOltGeneralDatapathCfg(GPonOltGeneralDatapathCfg* lhs, GPonOltGeneralDatapathCfg* rhs, int* key,
                                       List<char>& out);
bool getdiff_GPonOntEncryption(GPonOntEncryption* lhs, GPonOntEncryption* rhs, int* key, List<char>& out);
bool getdiff_GPonOltGeneralOpticsCfg(GPonOltGeneralOpticsCfg* lhs, GPonOltGeneralOpticsCfg* rhs, int* key,
                                     List<char>& out);
bool getdiff_GPonOltChannelCfg(GPonOltChannelCfg* lhs, GPonOltChannelCfg* rhs, int* key, List<char>& out);

// ont/: key[0]: the ONT's index; key[1]: the service or UNI port
bool getdiff_GPonOntCfg(GPonOntCfg* lhs, GPonOntCfg* rhs, int* key, List<char>& out);
unsigned char getdiff_GPonOntCustomCrossConnect(GPonOntCustomCrossConnect* lhs, GPonOntCustomCrossConnect* rhs,
                                                int* key, List<char>& out);
/// Emits its command even when nothing differs, and sorts the list of the new record.
bool getdiff_GPonOntSelectiveTunnel(GPonOntSelectiveTunnel* lhs, GPonOntSelectiveTunnel* rhs, int* key,
                                    List<char>& out);
bool getdiff_GPonOntPort(GPonOntPort* lhs, GPonOntPort* rhs, int* key, List<char>& out);
bool getdiff_GPonUniPoE(GPonUniPoE* lhs, GPonUniPoE* rhs, int* key, List<char>& out);
bool getdiff_GPonOntVoice(GPonOntVoiceCfg* lhs, GPonOntVoiceCfg* rhs, int* key, List<char>& out);

// profiles_olt/: key[0]: the profile's index
bool getdiff_GPonProfilesOlt(GPonProfilesOlt* lhs, GPonProfilesOlt* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOltVlan(GPonProfileOltVlan* lhs, GPonProfileOltVlan* rhs, int* key, List<char>& out);
/// key[1] selects the direction that the commands name: 0 uplink, else downlink.
bool getdiff_GVlanGeneralCfg(GVlanGeneralCfg* lhs, GVlanGeneralCfg* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOltAddressTable(GPonProfileOltAddressTable* lhs, GPonProfileOltAddressTable* rhs, int* key,
                                        List<char>& out);
bool getdiff_GAddressTableConfig(GAddressTableConfig* lhs, GAddressTableConfig* rhs, int* key, List<char>& out);
bool getdiff_GSvlanAddressTableConfig(GSvlanAddressTableConfig* lhs, GSvlanAddressTableConfig* rhs, int* key,
                                      List<char>& out);
bool getdiff_GPonProfileOltPppoeIa(GPonProfileOltPppoeIa* lhs, GPonProfileOltPppoeIa* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOltDhcpRa(GPonProfileOltDhcpRa* lhs, GPonProfileOltDhcpRa* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOltDhcpv6Ra(GPonProfileOltDhcpv6Ra* lhs, GPonProfileOltDhcpv6Ra* rhs, int* key,
                                    List<char>& out);

// profiles_ont/: key[0]: the profile's index; key[1]: the UNI port, multicast entry, policer or shaper
bool getdiff_GPonProfilesOnt(GPonProfilesOnt* lhs, GPonProfilesOnt* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOntCrossConnect(GPonProfileOntCrossConnect* lhs, GPonProfileOntCrossConnect* rhs, int* key,
                                        List<char>& out);
bool getdiff_GPonProfileOntManagement(GPonProfileOntManagement* lhs, GPonProfileOntManagement* rhs, int* key,
                                      List<char>& out);
bool getdiff_GPonTemplateOnt(GPonTemplateOnt* lhs, GPonTemplateOnt* rhs, int* key, List<char>& out);
bool getdiff_GPonIgmpSettings(GPonIgmpSettings* lhs, GPonIgmpSettings* rhs, int* key, List<char>& out);
bool getdiff_GPonMldSettings(GPonMldSettings* lhs, GPonMldSettings* rhs, int* key, List<char>& out);
bool getdiff_GPonMulticastDynamicEntry(GPonMulticastDynamicEntry* lhs, GPonMulticastDynamicEntry* rhs, int* key,
                                       List<char>& out);
bool getdiff_GPonMulticastDynamicEntryV6(GPonMulticastDynamicEntryV6* lhs, GPonMulticastDynamicEntryV6* rhs, int* key,
                                         List<char>& out);
/// @param prefix  how the commands begin; "port[$ID1]" stands for "port $ID1 igmp"
bool getdiff_GPonMulticastClientPortSettings(const char* prefix, GPonMulticastClientPortSettings* lhs,
                                             GPonMulticastClientPortSettings* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOntPorts(GPonProfileOntPorts* lhs, GPonProfileOntPorts* rhs, int* key, List<char>& out);
bool getdiff_GPonUniPort(GPonUniPort* lhs, GPonUniPort* rhs, int* key, List<char>& out);
bool getdiff_GPonVeipPort(GPonVeipPort* lhs, GPonVeipPort* rhs, int* key, List<char>& out);
bool getdiff_GPonUniShapingDownstream(GPonUniShaping* lhs, GPonUniShaping* rhs, int* key, List<char>& out);
bool getdiff_GPonUniShapingUpstream(GPonUniShaping* lhs, GPonUniShaping* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOntVoice(GPonProfileOntVoice* lhs, GPonProfileOntVoice* rhs, int* key, List<char>& out);
bool getdiff_GPonProfileOntVoiceSip(GPonProfileOntVoiceSip* lhs, GPonProfileOntVoiceSip* rhs, int* key,
                                    List<char>& out);
bool getdiff_GPonProfileOntShaping(GPonProfileOntShaping* lhs, GPonProfileOntShaping* rhs, int* key, List<char>& out);
bool getdiff_GPonOntShapingDownstream(GPonOntShapingDownstream* lhs, GPonOntShapingDownstream* rhs, int* key,
                                      List<char>& out);
bool getdiff_GPonOntShapingDownstreamParams(GPonOntShapingDownstreamParams* lhs, GPonOntShapingDownstreamParams* rhs,
                                            int* key, List<char>& out);
bool getdiff_GPonOntShapingUpstream(GPonOntShapingUpstream* lhs, GPonOntShapingUpstream* rhs, int* key,
                                    List<char>& out);
/// @param traffic_class  "", "unicast", "multicast" or "broadcast"
bool getdiff_GPonOntShapingUpstreamParams(const char* traffic_class, GPonOntShapingUpstreamParams* lhs,
                                          GPonOntShapingUpstreamParams* rhs, int* key, List<char>& out);
/// @return 0; 1 or 11 when the navigation, 3 or 13 when the command of broadcast or multicast could not be allocated
unsigned char getdiff_GPonOntStormControl(GPonOntStormControl* lhs, GPonOntStormControl* rhs, int* key,
                                          List<char>& out);
bool getdiff_GPonProfileOntAlloc(GPonProfileOntAlloc* lhs, GPonProfileOntAlloc* rhs, int* key, List<char>& out);
bool getdiff_GPonOntDba(GPonOntDba* lhs, GPonOntDba* rhs, int* key, List<char>& out);
/// @param name  the field that holds the record; not used
bool getdiff_GZorvanSLA(char* name, GZorvanSLA* lhs, GZorvanSLA* rhs, int* key, List<char>& out);

PON_EXPORTS_END

#endif
