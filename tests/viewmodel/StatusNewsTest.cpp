// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>

#include <gtest/gtest.h>

#include "viewmodel/PrintQString.h"
#include "viewmodel/StatusNews.h"

namespace quillmark {
namespace {

StatusPresentation connected(const char* status, std::int64_t threats) {
  return present(AgentStatus{true, threats, "none", status, "yesterday"});
}

const StatusPresentation offline = present(std::optional<AgentStatus>());

TEST(StatusNews, TellWhetherThereIsAnAgentAtFirst) {
  EXPECT_EQ(newsBetween({}, offline), QStringLiteral("Not connected to the agent"));
  EXPECT_EQ(newsBetween({}, connected("ok", 2)),
            QStringLiteral("Connected to the agent. Status: OK. Threats: 2"));
}

TEST(StatusNews, TellWhenTheConnectionIsLostAndFound) {
  EXPECT_EQ(newsBetween(connected("ok", 2), offline),
            QStringLiteral("Connection to the agent lost"));
  EXPECT_EQ(newsBetween(offline, connected("ok", 0)),
            QStringLiteral("Connected to the agent. Status: OK. Threats: 0"));
}

TEST(StatusNews, TellOnlyWhatHasChanged) {
  EXPECT_EQ(newsBetween(connected("ok", 2), connected("warning", 2)),
            QStringLiteral("Status: WARNING"));
  EXPECT_EQ(newsBetween(connected("ok", 2), connected("ok", 3)), QStringLiteral("Threats: 3"));
  EXPECT_EQ(newsBetween(connected("ok", 2), connected("bad", 3)),
            QStringLiteral("Status: BAD. Threats: 3"));
}

TEST(StatusNews, TellNothingIfNothingHasChanged) {
  EXPECT_EQ(newsBetween(connected("ok", 2), connected("ok", 2)), QString());
  EXPECT_EQ(newsBetween(offline, offline), QString());
}

}  // namespace
}  // namespace quillmark
