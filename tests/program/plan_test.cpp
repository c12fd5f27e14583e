/// plan and verify, and what diff reads back of the script that it is about to print.

#include "tests/support/program.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Json = nlohmann::json;

namespace {

class Plan : public ProgramTest {
  protected:
    Plan()
    {
        write("running.json", R"({"system": {"network": {"hostname": "olt-17"},
            "user": {"0": {"exist": true, "name": "admin", "password": "$6$old$hash", "priority": 15}}}})");
        write("wanted.json", R"({"system": {"network": {"hostname": "olt-18"},
            "user": {"0": {"exist": true, "name": "admin", "password": "$6$new$hash", "priority": 15}}}})");
        write("with-mcvlan.json", R"({"system": {"network": {"hostname": "olt-18"},
            "user": {"0": {"exist": true, "name": "admin", "password": "$6$old$hash", "priority": 15}}},
            "pon": {"network": {"mcvlan": 100}}})");
    }
};

TEST_F(Plan, NothingToDo)
{
    const Outcome outcome = run({"plan", "running.json", "running.json"});
    EXPECT_EQ(outcome.out, "nothing to do: the device holds what is wanted\n");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(Plan, SecretsAreMasked)
{
    const Outcome outcome = run({"plan", "running.json", "wanted.json"});
    EXPECT_EQ(outcome.out,
              "complete: 1 part of the settings changed, 1 user changed; 5 lines; 2 fields carried; 1 risk\n"
              "\n"
              "Risks\n"
              "  user \"admin\" crypted_password changes  line 3\n"
              "\n"
              "Changes\n"
              "  system.network\n"
              "    hostname  \"olt-17\" -> \"olt-18\"  line 2: hostname \"olt-18\"\n"
              "  user \"admin\", changed\n"
              "    password  *** (changed)  line 3: user \"admin\" crypted_password \"***\"\n");
    EXPECT_EQ(outcome.status, 1);

    const Outcome shown = run({"plan", "--show-secrets", "running.json", "wanted.json"});
    EXPECT_THAT(shown.out, HasSubstr("    password  \"$6$old$hash\" -> \"$6$new$hash\"  line 3: user \"admin\" "
                                     "crypted_password \"$6$new$hash\"\n"));
}

TEST_F(Plan, SecretsAreMaskedInRefusedLines)
{
    write("change.cli", "user admin crypted_password \"$6$new$hash\"\nconfigure terminal\n"
                        "user admin crypted_password \"$6$new$hash\n"
                        "user admin crypted_password \"$6$new$hash\" more\nuser admin passwrd $6$new$hash\n");
    for (const Arguments& how : {Arguments{"plan"}, Arguments{"plan", "--json"}, Arguments{"verify"}}) {
        Arguments arguments = how;
        arguments.insert(arguments.end(), {"running.json", "wanted.json", "change.cli"});
        const Outcome outcome = run(arguments);
        EXPECT_THAT(outcome.out + outcome.err, Not(HasSubstr("new$hash")));
        EXPECT_EQ(outcome.status, 1);
    }
}

TEST_F(Plan, ColorsAreForTerminals)
{
    EXPECT_THAT(run({"plan", "running.json", "wanted.json"}).out, Not(HasSubstr("\x1B")));
    EXPECT_THAT(run({"plan", "--color", "always", "running.json", "wanted.json"}).out,
                StartsWith("\x1B[33mcomplete: "));
    EXPECT_THAT(run({"plan", "--color", "never", "running.json", "wanted.json"}).out, StartsWith("complete: "));
    const Outcome outcome = run({"plan", "--color", "blue", "running.json", "wanted.json"});
    EXPECT_THAT(outcome.err, StartsWith("pondiff: --color blue: expected auto, always or never\n"));
    EXPECT_EQ(outcome.status, 2);
}

TEST_F(Plan, NamesCannotControlTheTerminal)
{
    write("running.json", "{}");
    write("wanted.json", R"({"pon": {"profiles_ont": {"voice": {"0": {"exist": true, "name": "a\u001b[2Jb"}}}}})");
    EXPECT_THAT(run({"plan", "running.json", "wanted.json"}).out, Not(HasSubstr("\x1B")));
}

TEST_F(Plan, OfAnotherScript)
{
    write("change.cli", "configure terminal\nhostname olt-18\nexit\ncommit\n");
    const Outcome outcome = run({"plan", "running.json", "with-mcvlan.json", "change.cli"});
    EXPECT_EQ(outcome.out, "INCOMPLETE: 2 parts of the settings changed; 4 lines; 1 field carried, 1 NOT applied; no "
                           "risks\n"
                           "\n"
                           "Changes\n"
                           "  system.network\n"
                           "    hostname  \"olt-17\" -> \"olt-18\"  line 2: hostname olt-18\n"
                           "  pon.network\n"
                           "    mcvlan  0 -> 100  NOT applied: no_command\n"
                           "\n"
                           "No command sets these fields (1)\n"
                           "  pon.network.mcvlan: wanted 100, stays 0; the multicast VLAN has no command\n"
                           "    set it by hand: no command\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Plan, OfManyOntsFoldsThem)
{
    std::string running;
    std::string wanted;
    for (int ont = 0; ont < 512; ++ont) {
        const std::string index = (ont == 0 ? "\"" : ", \"") + std::to_string(ont) + "\": ";
        running += index + R"({"exist": true})";
        wanted += index + R"({"exist": true, "fec_up": true})";
    }
    write("running.json", R"({"pon": {"ont": {)" + running + "}}}");
    write("wanted.json", R"({"pon": {"ont": {)" + wanted + "}}}");
    EXPECT_EQ(run({"plan", "running.json", "wanted.json"}).out,
              "complete: 512 ONTs changed; 1539 lines; 512 fields carried; no risks\n"
              "\n"
              "Changes\n"
              "  interface ont 0/0, changed\n"
              "    fec_up  false -> true  line 3: fec\n"
              "  interface ont 0/1, changed\n"
              "    fec_up  false -> true  line 6: fec\n"
              "  interface ont 0/2, changed\n"
              "    fec_up  false -> true  line 9: fec\n"
              "  ... 509 more ONTs with the same change\n");
    const std::string full = run({"plan", "--full", "running.json", "wanted.json"}).out;
    EXPECT_THAT(full, HasSubstr("  interface ont 7/63, changed\n    fec_up  false -> true  line 1536: fec\n"));
}

TEST_F(Plan, AsJson)
{
    const Outcome outcome = run({"plan", "--json", "running.json", "with-mcvlan.json"});
    const Json plan = Json::parse(outcome.out);
    EXPECT_EQ(plan["format"], 1);
    EXPECT_EQ(plan["verdict"], "incomplete");
    EXPECT_EQ(plan["summary"]["carried"], 1);
    EXPECT_EQ(plan["summary"]["no_command"], 1);
    EXPECT_EQ(plan["script"], (Json{"configure terminal", "hostname \"olt-18\"", "exit", "commit"}));
    const Json hostname = plan["objects"][0]["fields"][0];
    EXPECT_EQ(hostname, (Json{{"path", "system.network.hostname"},
                              {"running", "olt-17"},
                              {"wanted", "olt-18"},
                              {"after", "olt-18"},
                              {"class", "carried"},
                              {"lines", {2}}}));
    const Json mcvlan = plan["objects"][1]["fields"][0];
    EXPECT_EQ(mcvlan, (Json{{"path", "pon.network.mcvlan"},
                            {"running", 0},
                            {"wanted", 100},
                            {"after", 0},
                            {"class", "no_command"},
                            {"lines", Json::array()},
                            {"reason", "the multicast VLAN has no command"},
                            {"remedy", "set it by hand: no command"}}));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Plan, RoutesNameTheirArea)
{
    write("running.json", "{}");
    write("wanted.json", R"({"system": {"services": {"routing": {"route": {
        "0": {"exist": true, "prefix": "198.51.100.0", "mask": 24, "gateway": "192.0.2.1"}}}}}})");
    EXPECT_THAT(
        run({"plan", "running.json", "wanted.json"}).out,
        HasSubstr("  system.services.routing.route.0.mask: wanted 24, is not there; the script has no command for "
                  "it\n"
                  "    --only routes\n"));
    EXPECT_THAT(run({"plan", "--only", "routes", "running.json", "wanted.json"}).out,
                StartsWith("complete: 1 part of the settings changed; "));
}

class Verify : public Plan {};

TEST_F(Verify, SaysWhetherAScriptReachesWhatIsWanted)
{
    const Outcome reached = run({"verify", "running.json", "wanted.json"});
    EXPECT_EQ(reached.out, "");
    EXPECT_EQ(reached.status, 0);

    write("change.cli", "configure terminal\nhostname olt-17\nuser admin crypted_password $6$new$hash\nexit\ncommit\n");
    const Outcome outcome = run({"verify", "running.json", "wanted.json", "change.cli"});
    EXPECT_EQ(outcome.out, "system.network.hostname: wanted \"olt-18\", becomes \"olt-17\"; different: line 2 of the "
                           "script\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(Verify, RefusedLineIsNamed)
{
    write("change.cli", "hostname olt-18\nconfigure terminal\nuser admin crypted_password $6$new$hash\n");
    EXPECT_EQ(run({"verify", "running.json", "wanted.json", "change.cli"}).out,
              "system.network.hostname: wanted \"olt-18\", stays \"olt-17\"; refused: line 1: the view has no such "
              "command, at the top level\n");
}

TEST_F(Verify, ErrorIsStatusTwo)
{
    EXPECT_EQ(run({"verify", "running.json", "absent.json"}).status, 2);
    EXPECT_EQ(run({"verify", "running.json", "wanted.json", "wanted.json"}).status, 2);
}

class DiffReadsBack : public Plan {};

TEST_F(DiffReadsBack, WhatIsSetWronglyIsRefused)
{
    write("wanted.json", R"({"system": {"network": {"hostname": "olt-18"},
        "user": {"0": {"exist": true, "name": "admin", "password": "$6$old$hash", "priority": 15}}}})");
    const Surroundings other =
        with_other_library("TEST_SCRIPT=configure terminal\nhostname \"olt-19\"\nexit\ncommit\n");
    const Outcome outcome = run({"diff", "running.json", "wanted.json", "-o", "out"}, other);
    EXPECT_EQ(outcome.err,
              "pondiff: not applied: system.network.hostname: wanted \"olt-18\", becomes \"olt-19\"; line 2 "
              "of the script\n"
              "pondiff: no script is written: it would set fields to values that are not wanted; --force "
              "writes it\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(names(), ElementsAre("running.json", "wanted.json", "with-mcvlan.json"));
    EXPECT_EQ(run({"diff", "--force", "running.json", "wanted.json"}, other).status, 1);
    EXPECT_EQ(run({"diff", "--verbatim", "running.json", "wanted.json"}, other).status, 1);
}

TEST_F(DiffReadsBack, WayBack)
{
    const Outcome outcome = run({"diff", "running.json", "wanted.json", "--rollback", "back.cli", "-o", "there.cli"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(read("back.cli"), "configure terminal\nhostname \"olt-17\"\nuser \"admin\" crypted_password "
                                "\"$6$old$hash\"\nexit\ncommit\n");
    ASSERT_EQ(run({"apply", "running.json", "there.cli", "-o", "after.json"}).status, 0);
    EXPECT_EQ(run({"verify", "after.json", "running.json", "back.cli"}).status, 0);
}

TEST_F(DiffReadsBack, WhatTheWayBackDoesNotRestoreIsNamed)
{
    write("running.json", "{}");
    write("wanted.json", R"({"system": {"services": {"ssh": {"allow": {"0": {"ip": "192.0.2.0", "mask": 24}}}}}})");
    const Outcome outcome = run({"diff", "running.json", "wanted.json", "--rollback", "back.cli"});
    EXPECT_EQ(outcome.err,
              "pondiff: not restored: system.services.ssh.allow.0.ip: not wanted, stays \"192.0.2.0\"; the "
              "script does not remove it\n"
              "pondiff: not restored: system.services.ssh.allow.0.mask: not wanted, stays 24; the script "
              "does not remove it\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(DiffReadsBack, ScriptAndWayBackGoToDifferentPlaces)
{
    for (const Arguments& where : {Arguments{"--rollback", "x", "-o", "x"}, Arguments{"--rollback", "-"}}) {
        Arguments arguments{"diff", "running.json", "wanted.json"};
        arguments.insert(arguments.end(), where.begin(), where.end());
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err,
                    StartsWith("pondiff: --rollback " + where[1] + ": this is where the script goes, too\n"));
        EXPECT_EQ(outcome.status, 2);
    }
}

TEST_F(Plan, OfALineThatIsTakenBackHasItsRisks)
{
    write("running.json", R"({"system": {"services": {"ssh": {"enabled": true}}}})");
    write("change.cli", "configure terminal\nno ip ssh enable\nip ssh enable\nexit\ncommit\n");
    const Outcome outcome = run({"plan", "running.json", "running.json", "change.cli"});
    EXPECT_THAT(outcome.out, StartsWith("complete: nothing changed; 5 lines; 0 fields carried; 1 risk\n"));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(DiffReadsBack, RemovalsAreCounted)
{
    write("running.json", R"({"pon": {"ont": {"1": {"exist": true}, "2": {"exist": true}},
                                      "profiles_ont": {"voice": {"0": {"exist": true, "name": "sip"}}}}})");
    write("wanted.json", R"({"system": {"network": {"hostname": "olt-18"}}})");
    const Outcome outcome = run({"diff", "--max-removals", "1", "running.json", "wanted.json"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err,
                EndsWith("pondiff: no script is written: it removes 3 objects (ONTs: 2, voice profiles: 1), "
                         "more than --max-removals 1\n"));
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(run({"diff", "--max-removals", "3", "running.json", "wanted.json"}).status, 1);
}

} // namespace
