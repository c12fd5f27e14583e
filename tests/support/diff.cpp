#include "tests/support/diff.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

std::string joined(const Elements& elements)
{
    std::string text;
    for (const std::string& element : elements) {
        if (!element.empty() && element[0] != '\n') {
            text += element + '\n';
        }
    }
    return text;
}

Elements subjects(const std::string& script)
{
    Elements result;
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string subject;
        words >> subject;
        if (subject == "no") {
            words >> subject;
        }
        if (subject == "ip") {
            std::string service;
            words >> service;
            subject += " " + service;
        }
        if (result.empty() || result.back() != subject) {
            result.push_back(subject);
        }
    }
    return result;
}

std::string taken(char* text)
{
    if (!text) {
        ADD_FAILURE() << "an operation returned null";
        return "";
    }
    std::string copy = text;
    std::free(text);
    return copy;
}

namespace {

/// A copy of a record at an address of the wanted parity, in a block of its own so that a sanitizer sees its ends.
class Placed {
  public:
    Placed(const void* record, std::size_t size, bool odd)
        : size_(size), block_(static_cast<char*>(std::malloc(size + odd))), at_(block_ + odd)
    {
        std::memcpy(at_, record, size);
    }
    ~Placed() { std::free(block_); }
    Placed(const Placed&) = delete;
    Placed& operator=(const Placed&) = delete;

    void* get() { return at_; }
    bool differs_from(const void* record) const { return std::memcmp(at_, record, size_) != 0; }
    void copy_to(void* record) const { std::memcpy(record, at_, size_); }

  private:
    std::size_t size_;
    char* block_;
    char* at_;
};

} // namespace

Elements DiffRun::run(const AnyDiff& diff, void* before, void* after, std::size_t size)
{
    Elements results[2];
    int keys[2][10];
    const view_state state_before = current_view;
    for (const bool odd : {false, true}) {
        Placed lhs(before, size, odd);
        Placed rhs(after, size, odd);
        std::copy(std::begin(key), std::end(key), keys[odd]);
        current_view = {view, {view_key}};
        print_all = all;
        print_common = common;
        List<char> list;
        EXPECT_EQ(diff(lhs.get(), rhs.get(), keys[odd], list), 0);
        results[odd] = take_elements(list);
        EXPECT_FALSE(lhs.differs_from(before)) << "the old record was changed";
        if (!may_sort) {
            EXPECT_FALSE(rhs.differs_from(after)) << "the new record was changed";
        } else if (odd) {
            rhs.copy_to(after);
        }
    }
    print_all = 0;
    print_common = 1;
    current_view = state_before;
    EXPECT_EQ(results[0], results[1]) << "the text depends on the records' addresses";
    EXPECT_TRUE(std::equal(std::begin(keys[0]), std::end(keys[0]), keys[1]));
    std::copy(std::begin(keys[0]), std::end(keys[0]), key);
    return results[0];
}

Session::Session() = default;

Session::~Session()
{
    finalize_diff();
    print_all = 0;
    print_common = 1;
}

void Session::open(int all, int common) const
{
    ASSERT_EQ(initiate_diff(orig, cfg, all, common), 0);
}

std::string Session::full_diff() const
{
    return taken(GetDiff(orig, cfg));
}
