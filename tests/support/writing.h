#ifndef TESTS_SUPPORT_WRITING_H
#define TESTS_SUPPORT_WRITING_H

#include "tests/support/program.h"

/// What `Writing` has written.
inline constexpr char script[] = "configure terminal\n"
                                 "hostname \"olt-17\"\n"
                                 "exit\n"
                                 "commit\n";

/// Tests of the file that a script is written to.
class Writing : public ProgramTest {
  public:
    Writing()
    {
        write("orig.json", "{}");
        write("cfg.json", R"({"system": {"network": {"hostname": "olt-17"}}})");
    }

    Outcome write_script_to(const std::string& file, const Surroundings& surroundings = {}) const
    {
        return run({"diff", "orig.json", "cfg.json", "-o", file}, surroundings);
    }

    static Surroundings as_somebody_else()
    {
        Surroundings surroundings;
        surroundings.unprivileged = true;
        return surroundings;
    }

    bool reachable_by_others() const
    {
        std::filesystem::permissions(path("."), std::filesystem::perms(0755));
        return run({"--version"}, as_somebody_else()).status == 0;
    }

    static void expect_error(const Outcome& outcome, const std::string& message)
    {
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.status, 2);
    }
};

#endif
