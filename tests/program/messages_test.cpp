/// Messages escape what they quote: file names, arguments and values; visible_test.cpp tests the characters.

#include "tests/support/program.h"

namespace {

class Messages : public ProgramTest {
  public:
    void expect_error(const Arguments& arguments, const std::string& message) const
    {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.status, 2);
    }
};

constexpr char escape[] = "\x1B[2J";
constexpr char eight_bits[] = "\xC2\x9B"
                              "2J";
constexpr char turned[] = "\xE2\x80\xAE";

TEST_F(Messages, NamesOfFilesAreWrittenOut)
{
    expect_error({"show", std::string("a\n") + escape}, "pondiff: a\\x0A\\x1B[2J: No such file or directory\n");
    expect_error({"show", eight_bits}, "pondiff: \\u{9B}2J: No such file or directory\n");
    expect_error({"show", std::string("a") + turned + "nib"}, "pondiff: a\\u{202E}nib: No such file or directory\n");
    expect_error({"show", "a\xFF\x9B"}, "pondiff: a\\xFF\\x9B: No such file or directory\n");
    write("cfg.json", "{}");
    expect_error({"show", "cfg.json", "-o", std::string("absent/") + escape},
                 "pondiff: absent/\\x1B[2J: No such file or directory\n");
    write(escape, "{");
    expect_error({"show", escape},
                 "pondiff: \\x1B[2J:1:2: syntax error while parsing object key - unexpected end of input; expected "
                 "string literal\n");
}

TEST_F(Messages, ArgumentsAreWrittenOut)
{
    expect_error({escape}, "pondiff: \\x1B[2J: no such command or option\nTry 'pondiff --help'.\n");
    expect_error({"show", "a", turned}, "pondiff: The following argument was not expected: \\u{202E}\n"
                                        "Try 'pondiff show --help'.\n");
    expect_error({"diff", "a", "b", "--only", std::string("port:") + escape},
                 "pondiff: --only port:\\x1B[2J: no such GPON port; there are 0 to 7\nTry 'pondiff diff --help'.\n");
    expect_error({"diff", "a", "b", "--common", "\x9B"},
                 "pondiff: Could not convert: --common = \\x9B\nTry 'pondiff diff --help'.\n");
}

TEST_F(Messages, ValuesAreWrittenOut)
{
    write("cfg.json", std::string(R"({"system": {"network": {")") + eight_bits + R"(": 1}}})");
    expect_error({"show", "cfg.json"}, "pondiff: cfg.json: system.network: unknown field \"\\u{9B}2J\"\n");
    write("cfg.json", std::string(R"({"system": {"network": {"mngmtvlan": ")") + turned + R"(\u001b"}}})");
    expect_error({"show", "cfg.json"}, "pondiff: cfg.json: system.network.mngmtvlan: expected a whole number from 0 to "
                                       "65535, found \"\\u{202E}\\u001b\"\n");
}

TEST_F(Messages, FindingsAndWarningsAreWrittenOut)
{
    const std::string hostname = std::string(R"({"system": {"network": {"hostname": "\")") + turned + R"("}}})";
    write(escape, hostname);
    write("orig.json", "{}");
    EXPECT_EQ(run({"check", escape}).out, "\\x1B[2J: system.network.hostname: \"\\\"\\u{202E}\" holds a quote\n"
                                          "\\x1B[2J: system.network.hostname: \"\\\"\\u{202E}\" holds a character that "
                                          "does not show\n");
    const Outcome outcome = run({"diff", "orig.json", escape});
    EXPECT_EQ(outcome.err.substr(0, outcome.err.find('\n')),
              "pondiff: \\x1B[2J: system.network.hostname: \"\\\"\\u{202E}\" holds a quote and holds "
              "a character that does not show");
}

TEST_F(Messages, LinesOfScriptsAreWrittenOut)
{
    write("running.json", "{}");
    write(turned, std::string("configure terminal\nhostnames ") + escape + "\nfec " + eight_bits + "\r\n\xFF\n");
    EXPECT_EQ(run({"apply", "running.json", turned}).err,
              "pondiff: \\u{202E}:2: refused in the configure view: the view has no such command: "
              "hostnames \\x1B[2J\n"
              "pondiff: \\u{202E}:3: refused in the configure view: the view has no such command: fec \\u{9B}2J\n"
              "pondiff: \\u{202E}:4: refused in the configure view: the view has no such command: \\xFF\n");
    write("notes", eight_bits);
    expect_error({"show", "notes"},
                 "pondiff: notes: size is 4, but a record has " + std::to_string(sizeof(GCfg)) +
                     " bytes and a JSON document begins with '{', and no line is a command; the first is: "
                     "\\u{9B}2J\n");
}

/// Everything that the messages of the test quote is ASCII, except the hostile text itself.
void expect_printable(const std::string& message)
{
    EXPECT_NE(message, "");
    for (const char c : message) {
        EXPECT_TRUE(c == '\n' || (c >= ' ' && c <= '~')) << message;
    }
}

TEST_F(Messages, NoCommandPrintsWhatATerminalObeys)
{
    write("good.json", "{}");
    for (const std::string hostile :
         {escape, eight_bits, turned, "\r\n\t\a\x7F", "\xFF\xC0\x80\xED\xA0\x80", "a\xE4"}) {
        write("bad.json", R"({"system": {"network": {")" + hostile + R"(": 1}}})");
        write("bad.cli", "configure terminal\n" + hostile + "\n");
        write("bad.bin", hostile);
        for (const Arguments& arguments : std::vector<Arguments>{
                 {hostile},
                 {"--" + hostile},
                 {"show", "--" + hostile},
                 {"show", "good.json", "--as", hostile},
                 {"show", "good.json", "-o", "absent/" + hostile},
                 {"show", "good.json", "--base", hostile},
                 {"pack", hostile, "-o", "-"},
                 {"pack", "good.json", "-o", hostile + "/absent"},
                 {"check", hostile},
                 {"apply", "good.json", hostile},
                 {"apply", "good.json", "bad.cli", "--lines", hostile},
                 {"diff", "good.json", hostile},
                 {"diff", "good.json", "good.json", "--only", hostile},
                 {"diff", "good.json", "good.json", "--only", "ont:" + hostile},
                 {"diff", "good.json", "good.json", "--common", hostile},
             }) {
            const Outcome outcome = run(arguments);
            EXPECT_EQ(outcome.status, 2) << outcome.err;
            expect_printable(outcome.err);
        }
        for (const char* const file : {"bad.json", "bad.bin"}) {
            for (const Arguments& arguments : std::vector<Arguments>{{"show", file},
                                                                     {"pack", file, "-o", "-"},
                                                                     {"check", file},
                                                                     {"apply", file, "bad.cli"},
                                                                     {"diff", "good.json", file},
                                                                     {"show", "good.json", "--base", file}}) {
                expect_printable(run(arguments).err);
            }
        }
        expect_printable(run({"apply", "good.json", "bad.cli"}).err);
        expect_printable(run({"show", "bad.cli"}).err);
    }
}

} // namespace
