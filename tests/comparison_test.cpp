/// A comparison looks its result up instead of reading again: the tests change bytes in between to see which it does.

#include "pon/diff_builder/comparison.h"
#include "tests/support/diff.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

using pondiff::Comparison;

namespace {

constexpr std::size_t block = 4096;
constexpr std::size_t known_blocks = 512;

/// Two equal byte strings.
class Compared : public testing::Test {
  protected:
    explicit Compared(std::size_t size = 4 * block) : lhs(size, 'v'), rhs(size, 'v') {}

    void change(std::size_t at) { rhs[at] = 'w'; }
    void settle(std::size_t at) { rhs[at] = lhs[at]; }
    bool differ(std::size_t at, std::size_t size) const
    {
        return Comparison::differ(lhs.data() + at, rhs.data() + at, size);
    }

    std::vector<char> lhs;
    std::vector<char> rhs;
};

} // namespace

TEST_F(Compared, BytesAreReadWhileNothingIsKnown)
{
    EXPECT_FALSE(differ(0, lhs.size()));
    change(3 * block);
    EXPECT_TRUE(differ(0, lhs.size()));
    EXPECT_FALSE(differ(0, 3 * block));
    EXPECT_TRUE(differ(3 * block, 1));
    EXPECT_FALSE(differ(3 * block, 0));
}

TEST_F(Compared, AnEqualBlockIsNotReadAgain)
{
    const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
    change(block + 5);
    EXPECT_FALSE(differ(block, block));
    EXPECT_FALSE(differ(block, 300));
    EXPECT_FALSE(differ(0, lhs.size()));
}

TEST_F(Compared, ABlockThatDiffersIsReadForItsPartsAlone)
{
    change(block + 5);
    const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
    EXPECT_TRUE(differ(block, 300));
    EXPECT_FALSE(differ(block + 6, 300));
    EXPECT_TRUE(differ(block + 5, 300));
    EXPECT_FALSE(differ(block + 6, block - 6));
    settle(block + 5);
    EXPECT_TRUE(differ(block, block)) << "known";
    EXPECT_TRUE(differ(0, lhs.size()));
    EXPECT_FALSE(differ(block, block - 1)) << "read";
    EXPECT_FALSE(differ(block + 1, block - 1));
}

TEST_F(Compared, PartsOf256BytesAndMoreAreLookedUp)
{
    const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
    change(0);
    EXPECT_TRUE(differ(0, 1));
    EXPECT_TRUE(differ(0, 255));
    EXPECT_FALSE(differ(0, 256));
    EXPECT_FALSE(differ(0, 257));
}

TEST_F(Compared, PartsInDifferentPlacesAreRead)
{
    const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
    change(block);
    EXPECT_TRUE(Comparison::differ(lhs.data(), rhs.data() + block, 300));
    EXPECT_TRUE(Comparison::differ(lhs.data() + 1, rhs.data() + block, 300));
    EXPECT_FALSE(Comparison::differ(lhs.data(), rhs.data() + block + 1, 300));
    EXPECT_FALSE(Comparison::differ(lhs.data(), lhs.data() + block, 300)) << "one of them twice";
    change(0);
    EXPECT_FALSE(differ(0, 300)) << "known";
    EXPECT_TRUE(Comparison::differ(rhs.data(), lhs.data(), 300)) << "the other way round";
}

TEST_F(Compared, PartsAcrossBlocks)
{
    change(2 * block);
    const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
    EXPECT_TRUE(differ(2 * block - 299, 300));
    EXPECT_FALSE(differ(2 * block - 300, 300));
    EXPECT_TRUE(differ(block, 2 * block));
    EXPECT_TRUE(differ(0, 2 * block + 1));
    EXPECT_FALSE(differ(0, 2 * block));
    EXPECT_FALSE(differ(2 * block + 1, 2 * block - 1));
    change(block + 1);
    settle(2 * block);
    EXPECT_FALSE(differ(block, block + 1)) << "the first is known, a part of the second is read";
    EXPECT_TRUE(differ(block, 2 * block)) << "all of the second is known";
}

TEST_F(Compared, PartsThatReachBeyondAreRead)
{
    constexpr std::size_t inside = 2 * block;
    const Comparison comparison(lhs.data() + block, rhs.data() + block, inside);
    for (const std::size_t at : {std::size_t{0}, block, block + 300, 3 * block - 1, 3 * block, 4 * block - 1}) {
        change(at);
    }
    EXPECT_FALSE(differ(block, inside)) << "all that is known";
    EXPECT_FALSE(differ(3 * block - 300, 300)) << "its end";
    EXPECT_TRUE(differ(block, inside + 1)) << "one byte more";
    EXPECT_TRUE(differ(3 * block - 299, 300));
    EXPECT_TRUE(differ(3 * block, 300)) << "right behind it";
    EXPECT_TRUE(differ(3 * block + 1, block - 1));
    EXPECT_FALSE(differ(3 * block + 1, 300));
    EXPECT_TRUE(differ(block - 1, 300)) << "in front of it";
    EXPECT_TRUE(differ(0, 300));
    EXPECT_FALSE(differ(1, 300));
}

TEST_F(Compared, AShortLastBlock)
{
    change(block + 10);
    const Comparison comparison(lhs.data(), rhs.data(), block + 300);
    EXPECT_TRUE(differ(block, 300));
    EXPECT_FALSE(differ(block + 11, 289));
    settle(block + 10);
    change(block + 300);
    EXPECT_TRUE(differ(block, 300)) << "the whole of it is known";
    EXPECT_FALSE(differ(block, 299)) << "read";
    EXPECT_FALSE(differ(block + 1, 299));
    EXPECT_TRUE(differ(0, block + 300));
    EXPECT_TRUE(differ(block + 1, 300)) << "reaches beyond";
}

TEST_F(Compared, LessThanABlock)
{
    const Comparison comparison(lhs.data(), rhs.data(), 300);
    change(5);
    EXPECT_FALSE(differ(0, 300));
    EXPECT_FALSE(differ(1, 299));
    EXPECT_TRUE(differ(0, 301));
}

TEST_F(Compared, WhatIsKnownEndsWithItsOperation)
{
    {
        const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
        change(0);
        EXPECT_FALSE(differ(0, block));
    }
    EXPECT_TRUE(differ(0, block));
    const Comparison another(lhs.data(), rhs.data(), lhs.size());
    EXPECT_TRUE(differ(0, block));
    EXPECT_FALSE(differ(block, block));
}

TEST_F(Compared, AnOperationWithinAnotherKnowsItsOwnAlone)
{
    std::vector<char> others = lhs;
    const Comparison outer(lhs.data(), rhs.data(), lhs.size());
    change(0);
    {
        const Comparison inner(lhs.data(), others.data(), lhs.size());
        others[0] = 'w';
        EXPECT_TRUE(differ(0, block)) << "read: it is none of the inner one's";
        EXPECT_FALSE(Comparison::differ(lhs.data(), others.data(), block)) << "known";
    }
    EXPECT_FALSE(differ(0, block)) << "known again";
    EXPECT_TRUE(Comparison::differ(lhs.data(), others.data(), block));
}

TEST_F(Compared, ManyBlocksAndWhatLiesBehindThem)
{
    constexpr std::size_t known = known_blocks * block;
    lhs.assign(known + 2 * block, 'v');
    rhs = lhs;
    for (const std::size_t at : {std::size_t{0}, 63 * block, 64 * block, 65 * block, known - 1}) {
        change(at);
    }
    const Comparison comparison(lhs.data(), rhs.data(), lhs.size());
    for (std::size_t at = 0; at < known; at += block) {
        const std::size_t number = at / block;
        const bool differs = number == 0 || (number >= 63 && number <= 65) || number == known_blocks - 1;
        ASSERT_EQ(differ(at, block), differs) << number;
    }
    rhs = lhs;
    EXPECT_TRUE(differ(64 * block, block)) << "known";
    EXPECT_TRUE(differ(known - block, block)) << "the last that is";
    change(known);
    EXPECT_TRUE(differ(known, block)) << "read";
    EXPECT_FALSE(differ(known + block, block));
    EXPECT_FALSE(differ(known - block + 1, block - 1));
    EXPECT_TRUE(differ(known - block + 1, block));
}

// --------------------------------------------------------------------------------- lists that are sorted in place

namespace {

/// Five ONTs that lie in one block or two.
class SortedTunnels : public testing::Test {
  protected:
    static constexpr int first = 2;
    static constexpr int last = 6;

    SortedTunnels()
    {
        for (int ont = first; ont <= last; ++ont) {
            for (GCfg* const configuration : {session.orig, session.cfg}) {
                configuration->pon.ont[ont].exist = 1;
            }
        }
    }

    /// 7, 5 and 6 in every service of the ONT.
    static void set_tunnels(GPonOntCfg& ont)
    {
        for (GPonOntSelectiveTunnel& tunnel : ont.tunnel) {
            const s16 vids[] = {7, 5, 6};
            for (int i = 0; i < GCFG_TUNNEL_VIDS; ++i) {
                tunnel.uvid[i] = i < 3 ? vids[i] : s16{-1};
            }
        }
    }

    static std::string tunnels()
    {
        std::string text;
        for (int service = 0; service < GCFG_SERVICES; ++service) {
            text += "service " + std::string(service < 10 ? "   " : "  ") + std::to_string(service) +
                    " selective-tunnel uvid 5-7\n";
        }
        return text;
    }

    Session session;
};

} // namespace

/// The lists of one ONT become equal to the old ones during the walk.
TEST_F(SortedTunnels, DoNotHideTheChangeOfTheNextOnt)
{
    for (int ont = first; ont < last; ++ont) {
        set_tunnels(session.cfg->pon.ont[ont]);
        for (GPonOntSelectiveTunnel& tunnel : session.orig->pon.ont[ont].tunnel) {
            for (int i = 0; i < GCFG_TUNNEL_VIDS; ++i) {
                tunnel.uvid[i] = static_cast<s16>(i < 3 ? 5 + i : -1);
            }
        }
        session.cfg->pon.ont[ont + 1].fec_up = 1;
    }
    session.open();
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "interface ont 0/2\n" +
                                       tunnels() + "exit\ninterface ont 0/3\nfec\n" + tunnels() +
                                       "exit\ninterface ont 0/4\nfec\n" + tunnels() + "exit\ninterface ont 0/5\nfec\n" +
                                       tunnels() +
                                       "exit\ninterface ont 0/6\nfec\n"
                                       "exit\nexit\ncommit\n");
    EXPECT_EQ(session.full_diff(), "configure terminal\n"
                                   "interface ont 0/3\nfec\n"
                                   "exit\ninterface ont 0/4\nfec\n"
                                   "exit\ninterface ont 0/5\nfec\n"
                                   "exit\ninterface ont 0/6\nfec\n"
                                   "exit\nexit\ncommit\n")
        << "another operation compares anew: the lists are equal now";
}

/// Equal lists that are shown because everything is become different: that is no change of the ONTs beside theirs.
TEST_F(SortedTunnels, DoNotBringOutAnEqualOnt)
{
    set_tunnels(session.orig->pon.ont[first]);
    set_tunnels(session.cfg->pon.ont[first]);
    session.cfg->pon.ont[first].fec_up = 1;
    session.open(1, 0);
    const std::string script = session.full_diff();
    EXPECT_NE(script.find("interface ont 0/2\n"), script.npos);
    EXPECT_NE(script.find("service    0 selective-tunnel uvid 5-7\n"), script.npos);
    EXPECT_EQ(script.find("interface ont 0/3\n"), script.npos);
    EXPECT_EQ(script.find("interface ont 0/1\n"), script.npos);
    EXPECT_EQ(session.cfg->pon.ont[first].tunnel[0].uvid[0], 5);
}
