// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sample-agent/FixtureTree.h"
#include "scan/Capabilities.h"
#include "scan/Interfaces.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;
using Names = std::vector<std::string>;

TEST(NetworkInterfaces, AreNamedInTheKernelsOrder) {
  const FixtureTree tree;
  tree.write("net/dev",
             "Inter-|   Receive                |  Transmit\n"
             " face |bytes    packets errs drop|bytes    packets\n"
             "    lo:    3267      29    0    0    0     3267\n"
             "wlp2s0:93634161    2236    0    0    0    99688\n"
             " eth0:1: 5 5\n");
  EXPECT_EQ(networkInterfaces(tree.root()), (Names{"lo", "wlp2s0", "eth0:1"}));
}

TEST(NetworkInterfaces, AreThoseOfThisMachine) {
  const auto names = networkInterfaces("/proc");
  EXPECT_NE(std::find(names.begin(), names.end(), "lo"), names.end());
}

TEST(EffectiveCapabilities, AreNamed) {
  const FixtureTree tree;
  tree.write("self/status", "Name:\tx\nCapPrm:\t000001ffffffffff\nCapEff:\t0000020000002001\n");
  EXPECT_EQ(effectiveCapabilities(tree.root()), (Names{"CAP_CHOWN", "CAP_NET_RAW", "CAP_41"}));
}

/// Linux's names, in the order of their numbers.
Names capabilitiesOfLinux() {
  Names names;
  std::ifstream header("/usr/include/linux/capability.h");
  const std::regex definition(R"(#define (CAP_\w+)\s+\d+\s*)");
  std::smatch found;
  for (std::string line; std::getline(header, line);) {
    if (std::regex_match(line, found, definition)) {
      names.push_back(found[1]);
    }
  }
  return names;
}

TEST(EffectiveCapabilities, HaveTheNamesOfLinux) {
  const FixtureTree tree;
  tree.write("self/status", "CapEff:\t000001ffffffffff\n");
  const auto names = effectiveCapabilities(tree.root());
  ASSERT_EQ(names.size(), 41U);
  // A newer Linux has more.
  auto expected = capabilitiesOfLinux();
  ASSERT_GE(expected.size(), names.size());
  expected.resize(names.size());
  EXPECT_EQ(names, expected);
}

TEST(EffectiveCapabilities, AreNoneForAnOrdinaryUser) {
  const FixtureTree tree;
  tree.write("self/status", "CapEff:\t0000000000000000\n");
  EXPECT_TRUE(effectiveCapabilities(tree.root()).empty());
  tree.write("self/status", "CapEff:\n");
  EXPECT_TRUE(effectiveCapabilities(tree.root()).empty());
}

}  // namespace
}  // namespace quillmark::sample
