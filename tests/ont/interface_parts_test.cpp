#include "tests/support/diff.h"

namespace {

template <class Record>
class InOntView : public Diff<Record> {
  public:
    template <class Result>
    explicit InOntView(Result (*function)(Record*, Record*, int*, List<char>&)) : Diff<Record>(function)
    {
        this->view = "if-ont-view";
        this->key[0] = this->view_key = 5;
        this->key[1] = 2;
    }
};

// ------------------------------------------------------------------------------------------- custom cross-connect

TEST(OntCustomCrossConnect, EveryFieldInOrder)
{
    Diff custom{getdiff_GPonOntCustomCrossConnect};
    custom.key[0] = 64;
    custom.key[1] = 15;
    custom.after.exist = 1;
    custom.after.vid = 100;
    custom.after.svid = 200;
    custom.after.cos = 7;
    EXPECT_EQ(custom.script(), "configure terminal\n"
                               "interface ont 1/0\n"
                               "service   15 custom cvid \"100\"\n"
                               "service   15 custom svid \"200\"\n"
                               "service   15 custom cos \"7\"\n");
}

TEST(OntCustomCrossConnect, EachFieldAlone)
{
    InOntView custom{getdiff_GPonOntCustomCrossConnect};
    custom.before.exist = custom.after.exist = 1;
    custom.after.vid = 1;
    EXPECT_EQ(custom.elements(), (Elements{"", "service    2 custom cvid \"1\""}));
    custom.after.vid = 0;
    custom.after.svid = 1;
    EXPECT_EQ(custom.elements(), (Elements{"", "service    2 custom svid \"1\""}));
    custom.after.svid = 0;
    custom.after.cos = 1;
    EXPECT_EQ(custom.elements(), (Elements{"", "service    2 custom cos \"1\""}));
}

TEST(OntCustomCrossConnect, UnusedAndExtremeValues)
{
    InOntView custom{getdiff_GPonOntCustomCrossConnect};
    custom.before.exist = custom.after.exist = 1;
    custom.after.vid = custom.after.svid = -1;
    custom.after.cos = 255;
    EXPECT_EQ(custom.script(), "service    2 custom cvid \"unused\"\n"
                               "service    2 custom svid \"unused\"\n"
                               "service    2 custom cos \"255\"\n");
    custom.after.vid = -2;
    custom.after.svid = -32768;
    custom.after.cos = 0;
    EXPECT_EQ(custom.script(), "service    2 custom cvid \"-2\"\n"
                               "service    2 custom svid \"-32768\"\n");
}

TEST(OntCustomCrossConnect, SwitchedOffSaysNothing)
{
    InOntView custom{getdiff_GPonOntCustomCrossConnect};
    custom.before = {1, 100, 3, 200};
    EXPECT_EQ(custom.elements(), Elements{});
    custom.all = 1;
    EXPECT_EQ(custom.elements(), Elements{});
    custom.before.exist = 0;
    EXPECT_EQ(custom.elements(), Elements{});
}

TEST(OntCustomCrossConnect, SwitchedOnWithEqualValuesSaysNothingUnlessForced)
{
    InOntView custom{getdiff_GPonOntCustomCrossConnect};
    custom.before = {0, 100, 3, 200};
    custom.after = {65535, 100, 3, 200};
    EXPECT_EQ(custom.elements(), Elements{});
    custom.all = 1;
    for (const int common : {0, 1, 2}) {
        custom.common = common;
        EXPECT_EQ(custom.script(), "service    2 custom cvid \"100\"\n"
                                   "service    2 custom svid \"200\"\n"
                                   "service    2 custom cos \"3\"\n");
    }
}

TEST(OntCustomCrossConnect, ReturnsAByte)
{
    GPonOntCustomCrossConnect before{};
    GPonOntCustomCrossConnect after{};
    List<char> out;
    int key[10] = {};
    const unsigned char result = getdiff_GPonOntCustomCrossConnect(&before, &after, key, out);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(out.size(), 0);
    after.exist = 1;
    after.vid = 100;
    EXPECT_EQ(getdiff_GPonOntCustomCrossConnect(&before, &after, key, out), 0) << "with commands too";
    EXPECT_EQ(take_elements(out).size(), 2U);
}

// ------------------------------------------------------------------------------------------------------ UNI ports

TEST(OntPort, ShutDownAndBroughtUp)
{
    Diff port{getdiff_GPonOntPort};
    port.key[0] = 70;
    port.key[1] = 3;
    port.after.shutdown = 2;
    EXPECT_EQ(port.elements(), (Elements{"configure terminal\ninterface ont 1/6", "port    3 shutdown"}));
    std::swap(port.before, port.after);
    EXPECT_EQ(port.elements(), (Elements{"configure terminal\ninterface ont 1/6", "no port    3 shutdown"}));
}

TEST(OntPort, PowerOverEthernetFollows)
{
    InOntView port{getdiff_GPonOntPort};
    port.before.shutdown = 1;
    port.after.poe.enable = 1;
    EXPECT_EQ(port.script(), "no port    2 shutdown\nport    2 poe enable\n");
    port.before.shutdown = 0;
    EXPECT_EQ(port.elements(), (Elements{"", "port    2 poe enable"}));
}

TEST(OntPort, PrintAllForcesWhateverPartIsWanted)
{
    InOntView port{getdiff_GPonOntPort};
    EXPECT_EQ(port.elements(), Elements{});
    port.all = 1;
    for (const int common : {0, 1, 2}) {
        port.common = common;
        EXPECT_EQ(port.script(), "no port    2 shutdown\n"
                                 "no port    2 poe enable\n"
                                 "port    2 poe pse-class-control \"0\"\n"
                                 "port    2 poe power-priority \"invalid value\"\n");
    }
}

TEST(OntPoE, EveryFieldInOrder)
{
    Diff poe{getdiff_GPonUniPoE};
    poe.key[0] = 512;
    poe.after.enable = 65535;
    poe.after.pse_class_control = 255;
    poe.after.power_priority = 1;
    EXPECT_EQ(poe.script(), "configure terminal\n"
                            "interface ont 8/0\n"
                            "port    0 poe enable\n"
                            "port    0 poe pse-class-control \"255\"\n"
                            "port    0 poe power-priority \"critical\"\n");
}

TEST(OntPoE, EachFieldAlone)
{
    InOntView poe{getdiff_GPonUniPoE};
    poe.before.enable = 1;
    EXPECT_EQ(poe.elements(), (Elements{"", "no port    2 poe enable"}));
    poe.before = {};
    poe.before.pse_class_control = 4;
    EXPECT_EQ(poe.elements(), (Elements{"", "port    2 poe pse-class-control \"0\""}));
    poe.before = {};
    poe.after.power_priority = 2;
    EXPECT_EQ(poe.elements(), (Elements{"", "port    2 poe power-priority \"high\""}));
    poe.after.power_priority = 3;
    EXPECT_EQ(poe.elements(), (Elements{"", "port    2 poe power-priority \"low\""}));
    poe.before.power_priority = 3;
    for (const u8 nonsense : std::initializer_list<u8>{0, 4, 255}) {
        poe.after.power_priority = nonsense;
        EXPECT_EQ(poe.elements(), (Elements{"", "port    2 poe power-priority \"invalid value\""}));
    }
}

TEST(OntPoE, StatusHasNoCommand)
{
    InOntView poe{getdiff_GPonUniPoE};
    poe.after.power_detection_status = 1;
    poe.after.power_classification_status = 1;
    poe.after.current_power_consumption = 15400;
    EXPECT_EQ(poe.elements(), Elements{});
}

TEST(OntPoE, PrintAllForcesWhateverPartIsWanted)
{
    InOntView poe{getdiff_GPonUniPoE};
    poe.before.power_priority = poe.after.power_priority = 3;
    EXPECT_EQ(poe.elements(), Elements{});
    poe.all = 1;
    for (const int common : {0, 1, 2}) {
        poe.common = common;
        EXPECT_EQ(poe.script(), "no port    2 poe enable\n"
                                "port    2 poe pse-class-control \"0\"\n"
                                "port    2 poe power-priority \"low\"\n");
    }
}

} // namespace
