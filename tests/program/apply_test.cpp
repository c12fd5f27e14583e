#include "tests/support/program.h"

#include <gmock/gmock.h>

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

/// A device with one ONT; the document that every test begins with.
constexpr char running[] = R"({
  "system": {"network": {"hostname": "olt-17"}},
  "pon": {
    "network": {"terminal_vlan": {"0": {"exists": true, "name": "iptv", "tag": {"vid": 100}}}},
    "ont": {"70": {"exist": true, "serial": "ABCD01020304", "description": "kiosk"}}
  }
})";

class Apply : public ProgramTest {
  public:
    Apply() { write("running.json", running); }

    Outcome apply(const std::string& script, Arguments more = {}) const
    {
        write("change.cli", script);
        more.insert(more.begin(), {"apply", "running.json", "change.cli"});
        return run(more);
    }

    static void expect_error(const Outcome& outcome, const std::string& message)
    {
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.status, 2);
    }

    /// The document of the device with another name and another description of its ONT.
    static std::string document(const std::string& hostname, const std::string& description)
    {
        return "{\n"
               "  \"system\": {\n"
               "    \"network\": {\n"
               "      \"hostname\": \"" +
               hostname +
               "\"\n"
               "    }\n"
               "  },\n"
               "  \"pon\": {\n"
               "    \"ont\": {\n"
               "      \"70\": {\n"
               "        \"exist\": true,\n"
               "        \"description\": \"" +
               description +
               "\",\n"
               "        \"serial\": \"ABCD01020304\"\n"
               "      }\n"
               "    },\n"
               "    \"network\": {\n"
               "      \"terminal_vlan\": {\n"
               "        \"0\": {\n"
               "          \"exists\": true,\n"
               "          \"name\": \"iptv\",\n"
               "          \"tag\": {\"vid\": 100}\n"
               "        }\n"
               "      }\n"
               "    }\n"
               "  }\n"
               "}\n";
    }
};

// ---------------------------------------------------------------------------------------------- what the device holds

TEST_F(Apply, DocumentOfWhatTheDeviceHoldsAfterwards)
{
    const Outcome outcome = apply("configure terminal\n"
                                  "hostname \"olt-17-west\"\n"
                                  "interface ont 1/6\n"
                                  "description \"kiosk, platform 2\"\n"
                                  "exit\n"
                                  "exit\n"
                                  "commit\n");
    EXPECT_EQ(outcome.out, document("olt-17-west", "kiosk, platform 2"));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(read("running.json"), running);
}

TEST_F(Apply, EmptyScriptLeavesEverythingAsItIs)
{
    const Outcome outcome = apply("");
    EXPECT_EQ(outcome.out, document("olt-17", "kiosk"));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Apply, BlanksCommentsAndCarriageReturnsArePassedOver)
{
    const Outcome outcome =
        apply("\xEF\xBB\xBF! a change\r\n\r\nconfigure terminal\r\n# the name\r\n\thostname  olt-18\r\n");
    EXPECT_EQ(outcome.out, document("olt-18", "kiosk"));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Apply, WhatIsRemovedIsGone)
{
    const Outcome outcome = apply("configure terminal\n"
                                  "no interface ont 1/6\n"
                                  "no interface ont 1/7\n"
                                  "no gpon network terminal-vlan iptv\n");
    EXPECT_THAT(outcome.out, AllOf(HasSubstr("olt-17"), Not(HasSubstr("exist")), Not(HasSubstr("ABCD01020304")),
                                   Not(HasSubstr("iptv"))));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Apply, ScriptOfADiffMakesTheOneTheOther)
{
    write("wanted.json", document("olt-18", "kiosk, platform 2"));
    Surroundings surroundings;
    surroundings.input = run({"diff", "running.json", "wanted.json"}).out;
    const Outcome outcome = run({"apply", "running.json", "-"}, surroundings);
    EXPECT_EQ(outcome.out, read("wanted.json"));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Apply, DocumentGoesToAFile)
{
    const Outcome outcome = apply("configure terminal\nhostname olt-18\n", {"-o", "after.json"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(read("after.json"), document("olt-18", "kiosk"));
}

// ------------------------------------------------------------------------------------------------------ a device stops

TEST_F(Apply, FirstLinesAlone)
{
    const std::string script = "! blank lines and comments count\n"
                               "\n"
                               "configure terminal\n"
                               "hostname olt-18\n"
                               "hostname olt-19\n"
                               "nonsense\n";
    EXPECT_EQ(apply(script, {"--lines", "0"}).out, document("olt-17", "kiosk"));
    EXPECT_EQ(apply(script, {"--lines", "3"}).out, document("olt-17", "kiosk"));
    EXPECT_EQ(apply(script, {"--lines", "4"}).out, document("olt-18", "kiosk"));
    const Outcome before_nonsense = apply(script, {"--lines", "5"});
    EXPECT_EQ(before_nonsense.out, document("olt-19", "kiosk"));
    EXPECT_EQ(before_nonsense.err, "");
    EXPECT_EQ(before_nonsense.status, 0);
    EXPECT_EQ(apply(script, {"--lines", "6"}).status, 1);
    EXPECT_EQ(apply(script, {"--lines", "600"}).status, 1);
}

TEST_F(Apply, RestOfAChangeAfterAStop)
{
    write("wanted.json", document("olt-18", "kiosk, platform 2"));
    write("change.cli", run({"diff", "running.json", "wanted.json"}).out);
    Surroundings surroundings;
    surroundings.input = run({"apply", "running.json", "change.cli", "--lines", "2"}).out;
    const Outcome outcome = run({"diff", "-", "wanted.json"}, surroundings);
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "interface ont 1/6\n"
                           "description \"kiosk, platform 2\"\n"
                           "exit\n"
                           "exit\n"
                           "commit\n");
    EXPECT_EQ(outcome.err, "");
}

// ---------------------------------------------------------------------------------------------------- what is refused

TEST_F(Apply, RefusedLinesAreNamedWithPlaceAndReason)
{
    const Outcome outcome = apply("hostname olt-18\n"
                                  "configure terminal\n"
                                  "hostname \"olt-18\n"
                                  "gpon network terminal-vlan iptv vid 70000\n"
                                  "interface ont 1/6\n"
                                  "fec maybe\n"
                                  "description \"kiosk, platform 2\"\n"
                                  "exit\n"
                                  "profile vlan \"residential\"\n"
                                  "fec\n");
    EXPECT_EQ(outcome.err,
              "pondiff: change.cli:1: refused at the top level: the view has no such command: hostname olt-18\n"
              "pondiff: change.cli:3: refused in the configure view: a quote is not closed: hostname \"olt-18\n"
              "pondiff: change.cli:4: refused in the configure view: vid: expected a number from 0 to 65535: gpon "
              "network terminal-vlan iptv vid 70000\n"
              "pondiff: change.cli:6: refused in interface ont 1/6: the view has no such command: fec maybe\n"
              "pondiff: change.cli:10: refused in profile vlan \"residential\": the view has no such command: fec\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("\"description\": \"kiosk, platform 2\""));
}

TEST_F(Apply, ConfigurationIsWrittenThoughLinesWereRefused)
{
    const Outcome outcome = apply("nonsense\n", {"-o", "after.json"});
    EXPECT_EQ(outcome.err, "pondiff: change.cli:1: refused at the top level: the view has no such command: nonsense\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(read("after.json"), document("olt-17", "kiosk"));
}

TEST_F(Apply, RefusedTextOfAnyKindIsShownWrittenOut)
{
    const Outcome outcome =
        apply(std::string("a\033[31mb\n\xFF\xE2\x80\xAE!\n") + std::string("c\0d\n", 4) + std::string(300, 'x') + "\n");
    EXPECT_EQ(outcome.err,
              "pondiff: change.cli:1: refused at the top level: the view has no such command: a\\x1B[31mb\n"
              "pondiff: change.cli:2: refused at the top level: the view has no such command: \\xFF\\u{202E}!\n"
              "pondiff: change.cli:3: refused at the top level: a NUL character stands in it: c\\x00d\n"
              "pondiff: change.cli:4: refused at the top level: the view has no such command: " +
                  std::string(200, 'x') + "...\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Apply, OfManyRefusedLinesTheFirstAreShown)
{
    std::string script;
    std::string messages;
    for (int line = 1; line <= 20; ++line) {
        script += "nonsense\n";
        messages += "pondiff: change.cli:" + std::to_string(line) +
                    ": refused at the top level: the view has no such command: nonsense\n";
    }
    EXPECT_EQ(apply(script).err, messages);
    EXPECT_EQ(apply(script + "nonsense\n").err, messages + "pondiff: change.cli: 1 more line is refused\n");
    const Outcome outcome = apply(script + script);
    EXPECT_EQ(outcome.err, messages + "pondiff: change.cli: 20 more lines are refused\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Apply, AmbiguousLinesAreTakenAndNamedOnceForEachText)
{
    const Outcome outcome = apply("configure terminal\n"
                                  "profile cross-connect \"internet\"\n"
                                  "bridge\n"
                                  "exit\n"
                                  "profile cross-connect \"voice\"\n"
                                  "bridge\n"
                                  "exit\n"
                                  "interface gpon-port 3\n"
                                  "optics laser-reset\n");
    EXPECT_EQ(outcome.err, "pondiff: change.cli:3: ambiguous in profile cross-connect \"internet\": it is written for "
                           "several values and sets none: bridge (2 such lines)\n"
                           "pondiff: change.cli:9: ambiguous in interface gpon-port 3: it is written for several "
                           "values and sets none: optics laser-reset\n");
    EXPECT_EQ(outcome.status, 0);
}

// ------------------------------------------------------------------------------------------------------------- errors

TEST_F(Apply, ConfigurationInPlaceOfTheScriptIsAnError)
{
    expect_error(run({"apply", "running.json", "running.json"}),
                 "pondiff: running.json: expected a script, but this begins with '{' as a JSON document does\n");
    ASSERT_EQ(run({"pack", "running.json", "-o", "running.bin"}).status, 0);
    expect_error(run({"apply", "running.json", "running.bin", "-o", "after.json"}),
                 "pondiff: running.bin: expected a script, but this is a record\n");
    EXPECT_THAT(names(), ElementsAre("running.bin", "running.json"));
}

TEST_F(Apply, WhatCannotBeReadWritesNothing)
{
    expect_error(run({"apply", "running.json", "absent.cli", "-o", "after.json"}),
                 "pondiff: absent.cli: No such file or directory\n");
    expect_error(run({"apply", "absent.json", "absent.cli", "-o", "after.json"}),
                 "pondiff: absent.json: No such file or directory\n");
    EXPECT_THAT(names(), ElementsAre("running.json"));
}

TEST_F(Apply, MistakesOnTheCommandLine)
{
    const std::string hint = "Try 'pondiff apply --help'.\n";
    expect_error(run({"apply"}), "pondiff: RUNNING is required\n" + hint);
    expect_error(run({"apply", "running.json"}), "pondiff: SCRIPT is required\n" + hint);
    expect_error(run({"apply", "-", "-"}), "pondiff: only one of the files can be standard input\n" + hint);
    expect_error(run({"apply", "running.json", "-", "--base", "-"}),
                 "pondiff: only one of the files can be standard input\n" + hint);
    expect_error(apply("", {"--lines", "some"}), "pondiff: Could not convert: --lines = some\n" + hint);
    expect_error(apply("", {"--lines", "-1"}), "pondiff: --lines -1: expected 0 or more\n" + hint);
}

} // namespace
