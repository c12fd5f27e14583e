#include "tests/support/program.h"
#include "tool/account/meaning.h"
#include "tool/json/json.h"

#include <cstring>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <memory>
#include <set>
#include <string>

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

/// The lists of the sixteen tunnels of an ONT.
std::string empty_tunnels()
{
    std::string members = R"("0": {"uvid": []})";
    for (int i = 1; i < 16; ++i) {
        members += fmt::format(R"(, "{}": {{"uvid": []}})", i);
    }
    return members;
}

/// What the saved text of the examples means: references and lists that it does not set are none and empty.
const std::string saved_document = R"({
  "system": {
    "network": {
      "hostname": "olt-17", "ipaddr": "192.0.2.17", "netmask": "255.255.255.0", "gateway": "192.0.2.1"
    },
    "services": {
      "ssh": {"enabled": true, "access_control": true, "allow": {"0": {"ip": "192.0.2.0", "mask": 24}}},
      "ntp": {"enabled": true, "ntpserver": "192.0.2.123"}
    }
  },
  "pon": {
    "network": {"terminal_vlan": {"0": {"exists": true, "name": "iptv", "tag": {"vid": 100}}}},
    "ont": {
      "70": {
        "exist": true, "serial": "ABCD01020304", "description": "kiosk", "enabled": true,
        "profile_ont_cross_connect": [0, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1],
        "tunnel": {)" + empty_tunnels() +
                                   R"(}
      }
    },
    "profiles_ont": {
      "cross_connect": {
        "0": {"exist": true, "name": "iptv", "description": "Multicast television", "outer_vid": -100}
      }
    }
  }
})";

constexpr char left_unset[] = " fields have no command and are left unset; --base FILE takes them from a record or "
                              "document\n";

/// No differences.
const std::set<std::string> none;

class TextInput : public ProgramTest {
  public:
    TextInput() { std::filesystem::copy(EXAMPLES_DIR "/saved.cli", path("saved.cli")); }

    /// The configuration that a file of the test holds.
    std::unique_ptr<GCfg> configuration_in(const std::string& file, Arguments more = {}) const
    {
        more.insert(more.begin(), {"pack", file, "-o", "packed.bin"});
        EXPECT_EQ(run(more).status, 0);
        const std::string record = read("packed.bin");
        auto configuration = std::make_unique<GCfg>();
        EXPECT_EQ(record.size(), sizeof(GCfg));
        std::memcpy(configuration.get(), record.data(), std::min(record.size(), sizeof(GCfg)));
        return configuration;
    }

    static std::unique_ptr<GCfg> of_document(const std::string& document)
    {
        auto configuration = std::make_unique<GCfg>();
        pondiff::tool::read_json(document, "document", *configuration);
        return configuration;
    }

    /// The fields that do not mean the same.
    static std::set<std::string> differences(const GCfg& a, const GCfg& b)
    {
        std::set<std::string> paths;
        pondiff::tool::for_each_different_meaning(
            {&a, &b}, [&paths](const pondiff::tool::Beside<2>& field) { paths.insert(field.path.text()); });
        return paths;
    }

    void replace_in_saved(const std::string& old, const std::string& text, const std::string& file) const
    {
        std::string content = read("saved.cli");
        const std::size_t at = content.find(old);
        ASSERT_NE(at, content.npos) << old;
        write(file, content.replace(at, old.size(), text));
    }

    static void expect_error(const Outcome& outcome, const std::string& message)
    {
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.status, 2);
    }
};

// -------------------------------------------------------------------------------------------------------- what it says

TEST_F(TextInput, CommandsOfATextAreAConfiguration)
{
    EXPECT_EQ(differences(*configuration_in("saved.cli"), *of_document(saved_document)), none);
}

TEST_F(TextInput, TextsMayBeCompared)
{
    replace_in_saved("hostname \"olt-17\"", "hostname olt-17-west", "wanted.cli");
    const Outcome outcome = run({"diff", "saved.cli", "wanted.cli"});
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "hostname \"olt-17-west\"\n"
                           "exit\n"
                           "commit\n");
    EXPECT_EQ(outcome.err,
              std::string("pondiff: saved.cli: 687") + left_unset + "pondiff: wanted.cli: 687" + left_unset);
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(TextInput, ContentDecidesNotTheName)
{
    write("saved.json", read("saved.cli"));
    write("saved.bin", "\xEF\xBB\xBF" + read("saved.cli"));
    EXPECT_EQ(differences(*configuration_in("saved.json"), *of_document(saved_document)), none);
    EXPECT_EQ(differences(*configuration_in("saved.bin"), *of_document(saved_document)), none);
    Surroundings surroundings;
    surroundings.input = read("saved.cli");
    const Outcome outcome = run({"diff", "saved.cli", "-"}, surroundings);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              std::string("pondiff: saved.cli: 687") + left_unset + "pondiff: standard input: 687" + left_unset);
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(TextInput, TextOfTheSizeOfARecord)
{
    std::string text = read("saved.cli");
    text.resize(sizeof(GCfg), '\n');
    write("saved.cli", text);
    EXPECT_EQ(differences(*configuration_in("saved.cli"), *of_document(saved_document)), none);
    // Without a command it can only be a record.
    write("full.bin", std::string(sizeof(GCfg), '\xFF'));
    ASSERT_EQ(run({"pack", "full.bin", "-o", "packed.bin"}).err, "");
    EXPECT_EQ(read("packed.bin"), read("full.bin"));
}

TEST_F(TextInput, EveryCommandReadsTexts)
{
    const std::string left = std::string("pondiff: saved.cli: 687") + left_unset;
    const Outcome checked = run({"check", "saved.cli"});
    EXPECT_EQ(checked.out + checked.err, left);
    EXPECT_EQ(checked.status, 0);
    write("change.cli", "configure terminal\nhostname olt-18\n");
    const Outcome applied = run({"apply", "saved.cli", "change.cli"});
    EXPECT_THAT(applied.out, HasSubstr("\"hostname\": \"olt-18\""));
    EXPECT_EQ(applied.err, left);
    EXPECT_EQ(applied.status, 0);
    const Outcome shown = run({"show", "saved.cli"});
    EXPECT_EQ(differences(*of_document(shown.out), *of_document(saved_document)), none);
    EXPECT_EQ(shown.err, left);
}

TEST_F(TextInput, RefusedAndAmbiguousLinesAreReported)
{
    replace_in_saved("outer vid terminal-vlan \"iptv\"\n", "bridge\nouter vid terminal-vlan \"voice\"\nfec\n",
                     "wanted.cli");
    const Outcome outcome = run({"diff", "saved.cli", "wanted.cli"});
    EXPECT_EQ(outcome.err,
              std::string("pondiff: saved.cli: 687") + left_unset +
                  "pondiff: wanted.cli:18: refused in profile cross-connect \"iptv\": outer_vid: no object "
                  "has this name: outer vid terminal-vlan \"voice\"\n"
                  "pondiff: wanted.cli:19: refused in profile cross-connect \"iptv\": the view has no such "
                  "command: fec\n"
                  "pondiff: wanted.cli:17: ambiguous in profile cross-connect \"iptv\": it is written for "
                  "several values and sets none: bridge\n"
                  "pondiff: wanted.cli: 687" +
                  left_unset);
    EXPECT_EQ(outcome.out, "configure terminal\n"
                           "profile cross-connect \"iptv\"\n"
                           "outer vid \"0\"\n"
                           "exit\n"
                           "exit\n"
                           "commit\n");
    EXPECT_EQ(outcome.status, 1);
}

// --------------------------------------------------------------------------------------------------------------- slots

class TextBesideARecord : public TextInput {
  public:
    /// The record of the saved text, with its objects in other slots and another host name.
    std::unique_ptr<GCfg> moved() const
    {
        auto record = configuration_in("saved.cli");
        std::swap(record->pon.network.terminal_vlan[0], record->pon.network.terminal_vlan[5]);
        std::swap(record->pon.profiles_ont.cross_connect[0], record->pon.profiles_ont.cross_connect[2]);
        record->pon.profiles_ont.cross_connect[2].outer_vid = -105;
        record->pon.ont[70].profile_ont_cross_connect[0] = 2;
        std::swap(record->system.services.ssh.allow[0], record->system.services.ssh.allow[3]);
        std::memcpy(record->system.network.hostname, "olt-18", 6);
        return record;
    }
    void write_record(const std::string& file, const GCfg& record) const
    {
        write(file, {reinterpret_cast<const char*>(&record), sizeof record});
    }
    static std::string renaming(const std::string& name)
    {
        return "configure terminal\nhostname \"" + name + "\"\nexit\ncommit\n";
    }
};

TEST_F(TextBesideARecord, ObjectsOfATextAreInTheSlotsOfTheRecord)
{
    write_record("moved.bin", *moved());
    EXPECT_EQ(run({"diff", "saved.cli", "moved.bin"}).out, renaming("olt-18"));
    EXPECT_EQ(run({"diff", "moved.bin", "saved.cli"}).out, renaming("olt-17"));
}

TEST_F(TextBesideARecord, OrderOfATextDoesNotMatter)
{
    const std::string a = "profile cross-connect \"a\"\nuser vid 7\nexit\n";
    const std::string b = "profile cross-connect \"b\"\nuser vid 8\nexit\n";
    const std::string service = "interface ont 0/1\nservice 3 profile cross-connect \"b\"\nexit\n";
    write("one.cli", "configure terminal\n" + a + b + service);
    write("other.cli", "configure terminal\n" + b + a + service);
    const Outcome outcome = run({"diff", "one.cli", "other.cli"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(TextBesideARecord, NewObjectIsNoRenamedOne)
{
    const auto record = moved();
    GPonProfileOntCrossConnect& old = record->pon.profiles_ont.cross_connect[0];
    old.exist = 1;
    std::memcpy(old.name, "old", 4);
    write_record("moved.bin", *record);
    replace_in_saved("profile cross-connect \"iptv\"\n",
                     "profile cross-connect \"new\"\nuser vid 7\nexit\nprofile cross-connect \"iptv\"\n", "wanted.cli");
    const std::string script = run({"diff", "moved.bin", "wanted.cli"}).out;
    EXPECT_THAT(script, HasSubstr("\nprofile cross-connect \"old\"\nname \"\"\n"));
    EXPECT_THAT(script, HasSubstr("\nprofile cross-connect \"new\"\nuser vid \"7\"\n"));
}

// What free slots hold, such as numbers of a device that had an object there, is no difference.
TEST_F(TextBesideARecord, FreeSlotsMeanNothing)
{
    const auto record = moved();
    record->pon.ont[9].ber_interval = 5;
    record->pon.profiles_ont.cross_connect[7].outer_vid = 3;
    write_record("moved.bin", *record);
    EXPECT_EQ(run({"diff", "saved.cli", "moved.bin"}).out, renaming("olt-18"));
}

// ------------------------------------------------------------------------------------------------ what no command says

TEST_F(TextInput, BaseHasWhatNoCommandSays)
{
    write("base.json", R"({
  "system": {"network": {"hostname": "another"}, "services": {"web": {"session_timeout": 600}}},
  "pon": {
    "network": {
      "mcvlan": 77,
      "terminal_vlan": {"5": {"exists": true, "name": "iptv", "tag": {"ethertype": "0x88A8", "vid": 5}}}
    },
    "ont": {
      "70": {"exist": true, "description": "another", "auth_method": 2},
      "71": {"exist": true, "auth_method": 3}
    },
    "profiles_ont": {
      "cross_connect": {
        "0": {"exist": true, "name": "voice", "model": 1}, "3": {"exist": true, "name": "iptv", "model": 2}
      }
    }
  }
})");
    EXPECT_EQ(run({"show", "saved.cli", "--base", "base.json"}).err, "");
    const auto configuration = configuration_in("saved.cli", {"--base", "base.json"});
    EXPECT_EQ(u32(configuration->system.services.web.session_timeout), 600U);
    EXPECT_EQ(u16(configuration->pon.network.mcvlan), 77);
    EXPECT_EQ(u16(configuration->pon.network.terminal_vlan[0].tag.ethertype), 0x88A8);
    EXPECT_EQ(u16(configuration->pon.ont[70].auth_method), 2);
    EXPECT_EQ(u16(configuration->pon.profiles_ont.cross_connect[0].model), 2);
    const std::set<std::string> filled_in{"system.services.web.session_timeout", "pon.ont.70.auth_method",
                                          "pon.profiles_ont.cross_connect.0.model",
                                          "pon.network.terminal_vlan.0.tag.ethertype", "pon.network.mcvlan"};
    EXPECT_EQ(differences(*configuration, *of_document(saved_document)), filled_in);
}

// A port that is on has no command: without a line that switches it off it is as in the base.
TEST_F(TextInput, SwitchWithACommandForOffAlone)
{
    replace_in_saved("interface ont 1/6\n", "interface gpon-port 2\nshutdown\nexit\ninterface ont 1/6\n", "off.cli");
    EXPECT_EQ(run({"show", "off.cli"}).err, std::string("pondiff: off.cli: 686") + left_unset);
    write("base.json", R"({"pon": {"olt": {"channel": {"1": {"enabled": true, "fec_down": true},
                                                       "2": {"enabled": true}}}}})");
    const auto configuration = configuration_in("off.cli", {"--base", "base.json"});
    EXPECT_EQ(u16(configuration->pon.olt.channel[0].enabled), 0);
    EXPECT_EQ(u16(configuration->pon.olt.channel[1].enabled), 1);
    EXPECT_EQ(u16(configuration->pon.olt.channel[1].fec_down), 0);
    EXPECT_EQ(u16(configuration->pon.olt.channel[2].enabled), 0);
}

TEST_F(TextInput, BaseConcernsEveryText)
{
    write("base.json", saved_document);
    replace_in_saved("hostname \"olt-17\"", "hostname olt-17-west", "wanted.cli");
    const Outcome outcome = run({"diff", "saved.cli", "wanted.cli", "--base", "base.json"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(run({"check", "saved.cli", "--base", "base.json"}).err, "");
    ASSERT_EQ(run({"pack", "base.json", "-o", "base.bin"}).status, 0);
    EXPECT_EQ(run({"apply", "saved.cli", "-", "--base", "base.bin"}).err, "");
}

TEST_F(TextInput, ObjectsThatTheBaseDoesNotHave)
{
    constexpr char missing[] = "; the base does not have the objects that they belong to\n";
    write("base.json", "{}");
    EXPECT_EQ(run({"show", "saved.cli", "--base", "base.json"}).err,
              std::string("pondiff: saved.cli: 4 fields have no command and are left unset") + missing);
    write("base.json", R"({"pon": {"ont": {"70": {"exist": true}},
                                   "network": {"terminal_vlan": {"0": {"exists": true, "name": "iptv"}}}}})");
    EXPECT_EQ(run({"show", "saved.cli", "--base", "base.json"}).err,
              "pondiff: saved.cli: 1 field has no command and is left unset; the base does not have the object that it "
              "belongs to\n");
}

TEST_F(TextInput, MistakesInTheBaseAreErrors)
{
    write("cfg.json", "{}");
    expect_error(run({"show", "saved.cli", "--base", "absent"}), "pondiff: absent: No such file or directory\n");
    expect_error(run({"show", "cfg.json", "--base", "absent"}), "pondiff: absent: No such file or directory\n");
    expect_error(run({"show", "saved.cli", "--base", "saved.cli"}),
                 "pondiff: saved.cli: " + no_configuration(read("saved.cli").size()) +
                     ", and --base takes nothing else\n");
}

// ------------------------------------------------------------------------------------------------ what is no such text

TEST_F(TextInput, TextWithoutACommandIsAnError)
{
    write("notes.txt", "\n! notes\nask \033]0;x\007 them\nhostname olt-17\n");
    expect_error(run({"show", "notes.txt", "-o", "cfg.json"}),
                 "pondiff: notes.txt: " + no_configuration(41) +
                     ", and no line is a command; the first is: ask \\x1B]0;x\\x07 them\n");
    write("list.json", "[]");
    expect_error(run({"show", "list.json", "-o", "cfg.json"}),
                 "pondiff: list.json: " + no_configuration(2) + ", and no line is a command; the first is: []\n");
    write("comments", "! nothing\n\n");
    expect_error(run({"show", "comments", "-o", "cfg.json"}), "pondiff: comments: " + no_configuration(11) + "\n");
    EXPECT_THAT(names(), ElementsAre("comments", "list.json", "notes.txt", "saved.cli"));
}

TEST_F(TextInput, ZeroBytesAreInNoText)
{
    write("half.bin", std::string("configure terminal\n\0\n", 21));
    expect_error(run({"show", "half.bin"}), "pondiff: half.bin: " + no_configuration(21) + "\n");
}

// ------------------------------------------------------------------------------------------------------ show --as text

TEST_F(TextInput, ConfigurationIsWrittenAsAText)
{
    write("cfg.json", saved_document);
    const Outcome outcome = run({"show", "--as", "text", "cfg.json", "-o", "again.cli"});
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
    const std::string text = read("again.cli");
    EXPECT_EQ(text.substr(0, 37), "configure terminal\nhostname \"olt-17\"\n");
    EXPECT_THAT(text, HasSubstr("\ninterface ont 1/6\n"
                                "description \"kiosk\"\n"
                                "no shutdown\n"
                                "serial \"ABCD01020304\"\n"));
    EXPECT_EQ(differences(*configuration_in("again.cli"), *of_document(saved_document)), none);
}

TEST_F(TextInput, TextWithItsOriginAsBaseMeansTheSame)
{
    for (const char* const file : {EXAMPLES_DIR "/orig.json", EXAMPLES_DIR "/cfg.json"}) {
        ASSERT_EQ(run({"show", "--as", "text", file, "-o", "text"}).status, 0);
        EXPECT_EQ(differences(*configuration_in("text", {"--base", file}), *configuration_in(file)), none);
    }
}

/// The whole diff has no commands for it, but a device knows them.
TEST_F(TextInput, TextSaysTheAddressOfTheConfigurationServer)
{
    write("cfg.json", R"({"system": {"network": {"ACSIp": "192.0.2.9", "ACSMask": "255.255.255.0", "ACSVid": 12}}})");
    const Outcome outcome = run({"show", "--as", "text", "cfg.json"});
    EXPECT_THAT(outcome.out, HasSubstr("configure terminal\n"
                                       "ip acs server ip \"192.0.2.9\"\n"
                                       "ip acs server mask \"255.255.255.0\"\n"
                                       "ip acs server vid \"12\"\n"
                                       "exit\n"));
    EXPECT_EQ(outcome.err, "");
}

/// What a text is and what it is not when it begins like a document.
TEST_F(TextInput, TextThatBeginsLikeADocumentIsRefusedAsBoth)
{
    write("text", "{ hello }\nconfigure terminal\nhostname x\n");
    EXPECT_EQ(run({"show", "text"}).err,
              "pondiff: text:1:3: syntax error while parsing object key - invalid literal; what "
              "begins with '{' is read as a JSON document, so no text of commands may begin with it\n");
    write("document", "{\"system\": 5 5}\n");
    EXPECT_THAT(run({"show", "document"}).err, Not(HasSubstr("no text of commands")));
}

/// The base has the value of a line that is written for any; a word that stands for several values is another matter.
TEST_F(TextInput, LinesWhoseValueTheBaseHasAreNotMentioned)
{
    write("base.json",
          R"({"pon": {"profiles_ont": {"cross_connect": {"3": {"exist": true, "name": "a", "model": 4}}}}})");
    write("text", "configure terminal\nprofile cross-connect a\nbridge\ntag-mode unknown\n");
    const std::string of_word = "pondiff: text:4: ambiguous in profile cross-connect \"a\": it is written for several "
                                "values and sets none: tag-mode unknown\n";
    EXPECT_THAT(
        run({"show", "text"}).err,
        StartsWith("pondiff: text:3: ambiguous in profile cross-connect \"a\": it is written for several values "
                   "and sets none: bridge\n" +
                   of_word));
    const Outcome outcome = run({"show", "text", "--base", "base.json"});
    EXPECT_EQ(outcome.err, of_word);
    EXPECT_THAT(outcome.out, HasSubstr("\"model\": 4"));
    write("base.json", "{}");
    EXPECT_THAT(run({"show", "text", "--base", "base.json"}).err, HasSubstr("left unset"));
}

TEST_F(TextInput, GroupsOfUsersComeFromTheBase)
{
    write(
        "base.json",
        R"({"system": {"user": {"5": {"exist": true, "name": "eve", "group": {"1": {"exist": true, "name": "users"}}}}}})");
    write("text", "configure terminal\nuser eve privilege 7\n");
    EXPECT_THAT(run({"show", "text", "--base", "base.json"}).out, HasSubstr("\"group\""));
}

TEST_F(TextInput, FieldsThatATextLeavesOutAreCounted)
{
    write("cfg.json", R"({"pon": {"network": {"mcvlan": 77}}})");
    EXPECT_EQ(run({"show", "--as", "text", "cfg.json"}).err,
              "pondiff: cfg.json: the text leaves out 1 field: no command sets it, or no script can carry its value\n");
    write("cfg.json", R"({"system": {"network": {"hostname": "a\"b"}}, "pon": {"network": {"mcvlan": 77}}})");
    const Outcome outcome = run({"show", "--as", "text", "cfg.json"});
    EXPECT_EQ(outcome.err, "pondiff: cfg.json: the text leaves out 2 fields: no command sets them, or no script can "
                           "carry their values\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(TextInput, OtherFormsOfShow)
{
    write("cfg.json", saved_document);
    EXPECT_EQ(run({"show", "--as", "document", "cfg.json"}).out, run({"show", "cfg.json"}).out);
    ASSERT_EQ(run({"show", "--as", "record", "cfg.json", "-o", "shown.bin"}).err, "");
    ASSERT_EQ(run({"pack", "cfg.json", "-o", "cfg.bin"}).status, 0);
    EXPECT_EQ(read("shown.bin"), read("cfg.bin"));
    const std::string hint = "Try 'pondiff show --help'.\n";
    expect_error(run({"show", "--as", "text", "--full", "cfg.json"}),
                 "pondiff: only a document can be written with --full\n" + hint);
    expect_error(run({"show", "--as", "json", "cfg.json"}),
                 "pondiff: json: no such form; there are document, text and record\n" + hint);
}

} // namespace
