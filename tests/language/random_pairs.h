#ifndef TESTS_LANGUAGE_RANDOM_PAIRS_H
#define TESTS_LANGUAGE_RANDOM_PAIRS_H

/// @file
/// Random pairs of configurations, made as the fuzzers make them, with the values that a script can carry; the script
/// of each; and a device that takes it.

#include "fuzz/pair.h"
#include "fuzz/plain.h"
#include "fuzz/random.h"
#include "fuzz/scenario.h"
#include "fuzz/values.h"
#include "tests/language/configurations.h"
#include "tool/areas.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace language_tests {

class RandomPairs {
  public:
    explicit RandomPairs(unsigned seed)
        : random_(seed), pair_(fuzz::Pair::Address::odd), device_(std::make_unique<GCfg>(*pair_.orig()))
    {
    }

    /// Makes the next pair, and the script of it or of a part of it.
    void next()
    {
        pair_.restore(false);
        scenario = {};
        for (std::size_t count = 1 + random_.below(5); count > 0; --count) {
            fuzz::add_any_patch(scenario, random_);
        }
        scenario.all = random_.one_in(16) ? 1 : 0;
        scenario.common = static_cast<int>(random_.below(3));
        fuzz::make_plain(scenario);
        pair_.patch(scenario.patches);
        area = random_.one_in(3) ? any_area() : "";
        write();
    }

    /// Has a device that holds the old configuration take the script.
    /// @param visit  called with each line
    template <class Visit>
    const GCfg& take(Visit&& visit)
    {
        put_back();
        read_script(script, *device_, [&](const Line& line) {
            touched_.add(line);
            visit(line);
        });
        return *device_;
    }

    /// Makes the device hold the old configuration again.
    void put_back()
    {
        touched_.add(scenario.patches);
        touched_.put_back(*device_, orig());
        touched_.add(scenario.patches); // taken off the pair before it is patched again
    }

    GCfg& device() { return *device_; }
    GCfg& orig() { return *pair_.orig(); }
    GCfg& cfg() { return *pair_.cfg(); }

    fuzz::Scenario scenario;
    std::string area; ///< empty: the whole configuration
    std::string script;

  private:
    /// An area in which something is patched.
    std::string any_area()
    {
        static const std::string names[] = {"system", "pon",    "profiles-olt",  "profiles-ont",
                                            "alarm",  "routes", "terminal-vlans"};
        const std::size_t offset = scenario.patches.back().place.offset;
        if (offset >= offsetof(GCfg, pon.ont) && offset < offsetof(GCfg, pon.ont) + sizeof(GPonCfg::ont)) {
            return "ont:" + std::to_string((offset - offsetof(GCfg, pon.ont)) / sizeof(GPonOntCfg));
        }
        if (offset >= offsetof(GCfg, pon.olt.channel) &&
            offset < offsetof(GCfg, pon.olt.channel) + sizeof(GPonOltCfg::channel)) {
            return "port:" + std::to_string((offset - offsetof(GCfg, pon.olt.channel)) / sizeof(GPonOltChannelCfg));
        }
        if (random_.one_in(2)) {
            return random_.any_of(names);
        }
        for (const std::string& name : all_blocks_and_profiles()) {
            if (overlaps(area_named(name).records, offset, 1)) {
                return name;
            }
        }
        return "system";
    }

    static const std::vector<std::string>& all_blocks_and_profiles()
    {
        static const std::vector<std::string> names = [] {
            std::vector<std::string> all;
            for (const char* const block : {"olt", "network", "backup", "cli", "config", "management", "ntp", "snmp",
                                            "ssh", "source_guard", "telnet", "logging", "user"}) {
                all.push_back(std::string("block:") + block);
            }
            for (const char* const kind : {"vlan", "address-table", "pppoe-ia", "dhcp-ra", "dhcpv6-ra", "shaping",
                                           "cross-connect", "dba", "ports", "management", "template", "voice"}) {
                all.push_back(std::string("profile:") + kind);
            }
            return all;
        }();
        return names;
    }

    void write()
    {
        if (initiate_diff(&orig(), &cfg(), scenario.all, scenario.common) != 0) {
            std::abort();
        }
        const Area part = area.empty() ? whole_configuration(scenario.common) : area_named(area);
        script = text_of(part.script(orig(), cfg()));
        finalize_diff();
    }

    fuzz::Random random_;
    fuzz::Pair pair_;
    std::unique_ptr<GCfg> device_;
    Touched touched_;
};

} // namespace language_tests

#endif
