/// The program when allocations fail; failing_allocations_test.cpp tests the library.

#include "tests/support/program.h"

namespace {

class Memory : public ProgramTest {
  public:
    void SetUp() override
    {
#ifdef PONDIFF_SANITIZE
        GTEST_SKIP() << "AddressSanitizer has allocations of its own";
#endif
    }
};

/// Lets allocations fail, one in each run, until a run has fewer of them.
void fail_each(const Memory& test, const Arguments& arguments, const std::string& message)
{
    const Outcome complete = test.run(arguments);
    constexpr int most = 100000;
    int number = 1;
    for (; number < most; number += 1 + number / 16) { // all of the first ones, then fewer
        const Outcome outcome = test.run(
            arguments, with_other_library("TEST_FAILING_ALLOCATION=" + std::to_string(number), PONDIFF_FAILING_MEMORY));
        if (outcome.out == complete.out && outcome.status == complete.status) {
            break;
        }
        ASSERT_EQ(outcome.out, "") << number;
        ASSERT_EQ(outcome.err, message) << number;
        ASSERT_EQ(outcome.status, 2) << number;
    }
    EXPECT_GT(number, 100);
    EXPECT_LT(number, most);
}

TEST_F(Memory, HelpIsWholeOrAnError)
{
    fail_each(*this, {"--help"}, "pondiff: out of memory\n");
    fail_each(*this, {"diff", "--help"}, "pondiff: out of memory\n");
}

TEST_F(Memory, OutputIsWholeOrAnError)
{
    write("cfg.json", R"({"system": {"network": {"hostname": "olt-17"}}})");
    fail_each(*this, {"show", "cfg.json"}, "pondiff: out of memory\n");
    fail_each(*this, {"diff", "cfg.json", "cfg.json", "--verbatim", "--all"}, "pondiff: out of memory\n");
}

TEST_F(Memory, ErrorIsReportedOrOutOfMemoryIs)
{
    for (int number = 1; number < 4000; number += 1 + number / 16) {
        const Outcome outcome =
            run({"show", "absent"},
                with_other_library("TEST_FAILING_ALLOCATION=" + std::to_string(number), PONDIFF_FAILING_MEMORY));
        if (outcome.err != "pondiff: absent: No such file or directory\n") {
            EXPECT_EQ(outcome.err, "pondiff: out of memory\n") << number;
        }
        EXPECT_EQ(outcome.status, 2) << number;
    }
}

} // namespace
