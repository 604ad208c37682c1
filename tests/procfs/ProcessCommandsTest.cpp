// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/ProcessCommands.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using namespace std::string_literals;
using test::FixtureTree;

TEST(ProcessCommands, AreTheArgumentsJoinedBySpaces) {
  const FixtureTree tree;
  tree.write("proc/7/cmdline", "program\0--option\0two words\0"s);
  EXPECT_EQ(readProcessCommand(tree.path("proc"), 7).text, "program --option two words");
  EXPECT_TRUE(readProcessCommand(tree.path("proc"), 7).hasArguments);
}

TEST(ProcessCommands, EndBeforeThePaddingOfATitle) {
  const FixtureTree tree;
  tree.write("proc/7/cmdline", "title\0\0\0\0"s);
  EXPECT_EQ(readProcessCommand(tree.path("proc"), 7).text, "title");
}

TEST(ProcessCommands, KeepEmptyArgumentsWithin) {
  const FixtureTree tree;
  tree.write("proc/7/cmdline", "program\0\0last\0"s);
  EXPECT_EQ(readProcessCommand(tree.path("proc"), 7).text, "program  last");
}

TEST(ProcessCommands, AreTheNameIfThereAreNoArguments) {
  const FixtureTree tree;
  tree.write("proc/7/cmdline", "");
  tree.write("proc/7/comm", "ended\n");
  EXPECT_EQ(readProcessCommand(tree.path("proc"), 7).text, "ended");
  EXPECT_FALSE(readProcessCommand(tree.path("proc"), 7).hasArguments);
}

TEST(ProcessCommands, AreEmptyIfTheOnlyArgumentIsEmpty) {
  const FixtureTree tree;
  tree.write("proc/7/cmdline", "\0"s);
  tree.write("proc/7/comm", "nameless\n");
  EXPECT_EQ(readProcessCommand(tree.path("proc"), 7).text, "");
  EXPECT_TRUE(readProcessCommand(tree.path("proc"), 7).hasArguments);
}

TEST(ProcessCommands, AreEmptyForAProcessThatHasEnded) {
  const FixtureTree tree;
  EXPECT_EQ(readProcessCommand(tree.path("proc"), 7).text, "");
}

TEST(ProcessCommands, OfAllAreInTheOrderOfTheirNumbers) {
  const FixtureTree tree;
  for (const std::string pid : {"30", "4", "200"}) {
    tree.write("proc/" + pid + "/cmdline", "of " + pid);
  }
  tree.write("proc/self/cmdline", "no number");
  std::vector<std::string> texts;
  for (const auto& line : readProcessCommands(tree.path("proc"))) {
    texts.push_back(line.text);
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"of 4", "of 30", "of 200"}));
}

}  // namespace
}  // namespace quillmark::sample
