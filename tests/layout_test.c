/* The size of every configuration record as a C caller sees it. */
#include "gcfg/gcfg.h"

#include <string.h>

int layout_seen_from_c(const char* record);
int layout_records_seen_from_c(void);

#define SIZE(record)                                                                                                   \
    {                                                                                                                  \
#record, (int)sizeof(record##_t)                                                                               \
    }

static const struct {
    const char* record;
    int size;
} sizes[] = {SIZE(GSystemNetworkCfg),
             SIZE(GSystemUserGroup),
             SIZE(GSystemUser),
             SIZE(GSystemServiceAllow),
             SIZE(GSystemHttpCfg),
             SIZE(GSystemHttpsCfg),
             SIZE(GSystemTelnetCfg),
             SIZE(GSystemSshCfg),
             SIZE(GSystemSnmpTrap),
             SIZE(GSystemSnmpAlias),
             SIZE(GSystemSnmpCfg),
             SIZE(GSystemLogDestCfg),
             SIZE(GSystemSyslogCfg),
             SIZE(GSystemNtpCfg),
             SIZE(GSystemAlarmTypeCfg),
             SIZE(GSystemAlarmSystemCfg),
             SIZE(GSystemAlarmCfg),
             SIZE(GSystemWebCfg),
             SIZE(GCustomOntListShowing),
             SIZE(GSystemCliCfg),
             SIZE(GSubmoduleLogCfg),
             SIZE(GSystemLogCfg),
             SIZE(GSystemTftpCfg),
             SIZE(GSystemConfigCfg),
             SIZE(GSystemAcsCfg),
             SIZE(GSystemAuthNetCfg),
             SIZE(GSystemAuthCfg),
             SIZE(GSystemFanCfg),
             SIZE(GSystemRouteCfg),
             SIZE(GSystemRoutingCfg),
             SIZE(GSystemSourceGuardBindCfg),
             SIZE(GSystemSourceGuardCfgVlanAllowed),
             SIZE(GSystemSourceGuardCfg),
             SIZE(GSystemServices),
             SIZE(GSystemPrivilegeLevel),
             SIZE(GSystemCommonSettings),
             SIZE(GSystemCfg),

             SIZE(GPonOltGeneralActivationCfg),
             SIZE(GPonOltGeneralRedundancyCfg),
             SIZE(GPonOltGeneralL3DHCPCfg),
             SIZE(GPonOltGeneralL3PPPoECfg),
             SIZE(GPonOltGeneralL3Cfg),
             SIZE(GPonOltDhcpraCfgByVid),
             SIZE(GPonOltDhcpv6raCfgByVid),
             SIZE(GPonOltGeneralDatapathCfg),
             SIZE(GPonOntEncryption),
             SIZE(GPonOltGeneralDBAShortCycle),
             SIZE(GPonOltGeneralCfg),
             SIZE(GPonOltGeneralOpticsCfg),
             SIZE(GPonOltChannelCfg),
             SIZE(GPonOltCfg),

             SIZE(GPonOntCustomCrossConnect),
             SIZE(GPonOntSelectiveTunnel),
             SIZE(GPonUniPoE),
             SIZE(GPonOntPort),
             SIZE(GPonOntVoicePort),
             SIZE(GPonOntVoiceIpHost),
             SIZE(GPonOntVoiceVoip),
             SIZE(GPonOntVoiceCfg),
             SIZE(GPonOntCfg),

             SIZE(GVlanTag),
             SIZE(GVlanTagEx),
             SIZE(GPonNetworkCfg),

             SIZE(GVlanGeneralCfg),
             SIZE(GPonProfileOltVlan),
             SIZE(GAddressTableConfig),
             SIZE(GSvlanAddressTableConfig),
             SIZE(GPonProfileOltAddressTable),
             SIZE(GPonProfileOltPppoeIa),
             SIZE(GPonProfileOltDhcpRa),
             SIZE(GPonProfileOltDhcpv6Ra),
             SIZE(GPonProfilesOlt),

             SIZE(GPonOntShapingDownstreamParams),
             SIZE(GPonOntShapingDownstream),
             SIZE(GPonOntShapingUpstreamParams),
             SIZE(GPonOntStormControl),
             SIZE(GPonOntShapingUpstream),
             SIZE(GPonProfileOntShaping),
             SIZE(GPonProfileOntCrossConnect),
             SIZE(GZorvanSLA),
             SIZE(GPonOntDba),
             SIZE(GPonProfileOntAlloc),
             SIZE(GPonMulticastDynamicEntry),
             SIZE(GPonMulticastDynamicEntryV6),
             SIZE(GPonIgmpSettings),
             SIZE(GPonMldSettings),
             SIZE(GPonMulticastClientPortSettings),
             SIZE(GPonUniShaping),
             SIZE(GPonUniPort),
             SIZE(GPonVeipPort),
             SIZE(GPonProfileOntPorts),
             SIZE(GPonProfileOntManagement),
             SIZE(GPonTemplateOnt),
             SIZE(GPonProfileOntVoiceSip),
             SIZE(GPonProfileOntVoice),
             SIZE(GPonProfilesOnt),

             SIZE(GPonCfg),
             SIZE(GCfg)};

int layout_seen_from_c(const char* record)
{
    for (size_t i = 0; i < sizeof(sizes) / sizeof(sizes[0]); ++i) {
        if (strcmp(sizes[i].record, record) == 0) {
            return sizes[i].size;
        }
    }
    return -1;
}

int layout_records_seen_from_c(void)
{
    return (int)(sizeof(sizes) / sizeof(sizes[0]));
}
