// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>

#include <gtest/gtest.h>

#include "viewmodel/PrintQString.h"
#include "viewmodel/StatusAnnouncements.h"

namespace quillmark {
namespace {

StatusPresentation connected(const char* status, std::int64_t threats) {
  return present(AgentStatus{true, threats, "none", status, "yesterday"});
}

const StatusPresentation offline = present(std::optional<AgentStatus>());

TEST(StatusAnnouncements, TellWhetherThereIsAnAgentAtFirst) {
  EXPECT_EQ(announcementFor({}, offline), QStringLiteral("Not connected to the agent"));
  EXPECT_EQ(announcementFor({}, connected("ok", 2)),
            QStringLiteral("Connected to the agent. Status: OK. Threats: 2"));
}

TEST(StatusAnnouncements, TellWhenTheConnectionIsLostAndFound) {
  EXPECT_EQ(announcementFor(connected("ok", 2), offline),
            QStringLiteral("Connection to the agent lost"));
  EXPECT_EQ(announcementFor(offline, connected("ok", 0)),
            QStringLiteral("Connected to the agent. Status: OK. Threats: 0"));
}

TEST(StatusAnnouncements, TellOnlyWhatHasChanged) {
  EXPECT_EQ(announcementFor(connected("ok", 2), connected("warning", 2)),
            QStringLiteral("Status: WARNING"));
  EXPECT_EQ(announcementFor(connected("ok", 2), connected("ok", 3)), QStringLiteral("Threats: 3"));
  EXPECT_EQ(announcementFor(connected("ok", 2), connected("bad", 3)),
            QStringLiteral("Status: BAD. Threats: 3"));
}

TEST(StatusAnnouncements, TellNothingIfNothingHasChanged) {
  EXPECT_EQ(announcementFor(connected("ok", 2), connected("ok", 2)), QString());
  EXPECT_EQ(announcementFor(offline, offline), QString());
}

}  // namespace
}  // namespace quillmark
