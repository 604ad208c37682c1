// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <limits>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "viewmodel/PrintQString.h"
#include "viewmodel/Settled.h"
#include "viewmodel/StatusPresentation.h"

namespace quillmark {
namespace {

StatusPresentation presentText(const std::string& text) {
  return present(AgentStatus{true, 0, "none", text, "yesterday"});
}

StatusPresentation presentCount(std::int64_t count) {
  return present(AgentStatus{true, count, "none", "ok", "yesterday"});
}

TEST(StatusPresentation, IsOfflineWithoutThreatsIfThereIsNoStatus) {
  const auto header = present(std::optional<AgentStatus>());
  EXPECT_EQ(header.status, QStringLiteral("OFFLINE"));
  EXPECT_FALSE(header.statusIsHealthy);
  EXPECT_EQ(header.threats, QStringLiteral("0"));
  EXPECT_TRUE(header.hasNoThreats);
  EXPECT_FALSE(header.isConnected);
  EXPECT_TRUE(header.lastScan.isEmpty());
}

struct StatusText {
  std::string received;
  QString shown;
  bool isHealthy;
};

void PrintTo(const StatusText& status, std::ostream* out) { *out << '"' << status.received << '"'; }

class StatusTextTest : public testing::TestWithParam<StatusText> {};

TEST_P(StatusTextTest, IsShownInUpperCaseAndJudgedAsReceived) {
  const auto header =
      test::settled(Turns::ofProcess(), [] { return presentText(GetParam().received); });
  EXPECT_EQ(header.status, GetParam().shown);
  EXPECT_EQ(header.statusIsHealthy, GetParam().isHealthy);
}

INSTANTIATE_TEST_SUITE_P(Texts, StatusTextTest,
                         testing::Values(StatusText{"ok", QStringLiteral("OK"), true},
                                         StatusText{"OK", QStringLiteral("OK"), false},
                                         StatusText{"Ok", QStringLiteral("OK"), false},
                                         StatusText{"oK", QStringLiteral("OK"), false},
                                         StatusText{"ok ", QStringLiteral("OK "), false},
                                         StatusText{" ok", QStringLiteral(" OK"), false},
                                         StatusText{"okay", QStringLiteral("OKAY"), false},
                                         StatusText{"running", QStringLiteral("RUNNING"), false},
                                         StatusText{"", QString(), false},
                                         StatusText{"offline", QStringLiteral("OFFLINE"), false},
                                         StatusText{"weiß", QStringLiteral("WEISS"), false},
                                         StatusText{"ﬁne", QStringLiteral("FINE"), false},
                                         StatusText{"größe", QStringLiteral("GRÖSSE"), false},
                                         StatusText{"ждёт", QStringLiteral("ЖДЁТ"), false},
                                         StatusText{"𐐨", QStringLiteral("𐐀"), false},
                                         StatusText{"🛡 on", QStringLiteral("🛡 ON"), false},
                                         // As in every locale but two, where it would be "İ".
                                         StatusText{"idle", QStringLiteral("IDLE"), false}));

struct ThreatCount {
  std::int64_t count;
  QString shown;
  bool isHealthy;
};

void PrintTo(const ThreatCount& threats, std::ostream* out) { *out << threats.count; }

class ThreatCountTest : public testing::TestWithParam<ThreatCount> {};

TEST_P(ThreatCountTest, IsAPlainIntegerAndHealthyAtZeroOnly) {
  const auto header = presentCount(GetParam().count);
  EXPECT_EQ(header.threats, GetParam().shown);
  EXPECT_EQ(header.hasNoThreats, GetParam().isHealthy);
}

INSTANTIATE_TEST_SUITE_P(Counts, ThreatCountTest,
                         testing::Values(ThreatCount{0, QStringLiteral("0"), true},
                                         ThreatCount{3, QStringLiteral("3"), false},
                                         ThreatCount{-1, QStringLiteral("-1"), false},
                                         ThreatCount{1234567, QStringLiteral("1234567"), false},
                                         ThreatCount{std::numeric_limits<std::int64_t>::max(),
                                                     QStringLiteral("9223372036854775807"), false},
                                         ThreatCount{std::numeric_limits<std::int64_t>::min(),
                                                     QStringLiteral("-9223372036854775808"),
                                                     false}));

TEST(StatusPresentation, HasALastScanAsSoonAsThereIsAStatus) {
  const auto header = presentText("ok");
  EXPECT_TRUE(header.isConnected);
  EXPECT_EQ(header.lastScan, QStringLiteral("yesterday"));
}

TEST(StatusPresentation, HasAnEmptyLastScanIfTheAgentSentNone) {
  const auto header = present(AgentStatus{true, 0, "none", "ok", ""});
  EXPECT_TRUE(header.isConnected);
  EXPECT_TRUE(header.lastScan.isEmpty());
}

TEST(StatusPresentation, FormatsALastScanThatIsATime) {
  const auto header = present(AgentStatus{true, 0, "none", "ok", "2024-01-15T10:30:00Z"});
  EXPECT_FALSE(header.lastScan.isEmpty());
  EXPECT_NE(header.lastScan, QStringLiteral("2024-01-15T10:30:00Z"));
}

TEST(StatusPresentation, DoesNotJudgeByProtectionOrLastAlert) {
  const auto header = present(AgentStatus{false, 0, "malware", "ok", ""});
  EXPECT_TRUE(header.statusIsHealthy);
  EXPECT_TRUE(header.hasNoThreats);
}

}  // namespace
}  // namespace quillmark
