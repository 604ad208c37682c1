// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "viewmodel/AlertPresentation.h"
#include "viewmodel/PrintQString.h"

namespace quillmark {
namespace {

ThreatAlert alertOf(const std::string& severity) { return {"malware", severity, {}, {}, {}, {}}; }

struct Severity {
  std::string text;
  const char* icon;
  const char* color;
};

void PrintTo(const Severity& severity, std::ostream* out) { *out << '"' << severity.text << '"'; }

class SeverityTest : public testing::TestWithParam<Severity> {};

TEST_P(SeverityTest, ChoosesIconAndColour) {
  const auto row = present(alertOf(GetParam().text));
  EXPECT_EQ(row.severityIcon, QLatin1String(GetParam().icon));
  EXPECT_EQ(row.severityColor, QLatin1String(GetParam().color));
}

constexpr auto triangle = "exclamationmark.triangle.fill";
constexpr auto fullCircle = "exclamationmark.circle.fill";
constexpr auto circle = "exclamationmark.circle";
constexpr auto infoCircle = "info.circle";

INSTANTIATE_TEST_SUITE_P(
    Severities, SeverityTest,
    testing::Values(Severity{"critical", triangle, "red"}, Severity{"CRITICAL", triangle, "red"},
                    Severity{"Critical", triangle, "red"}, Severity{"cRiTiCaL", triangle, "red"},
                    Severity{"high", fullCircle, "orange"}, Severity{"HIGH", fullCircle, "orange"},
                    Severity{"High", fullCircle, "orange"}, Severity{"medium", circle, "yellow"},
                    Severity{"MEDIUM", circle, "yellow"}, Severity{"Medium", circle, "yellow"},
                    Severity{"low", infoCircle, "blue"}, Severity{"LOW", infoCircle, "blue"},
                    Severity{"", infoCircle, "blue"}, Severity{"unknown", infoCircle, "blue"},
                    Severity{" critical", infoCircle, "blue"},
                    Severity{"critical ", infoCircle, "blue"},
                    Severity{"high\n", infoCircle, "blue"},
                    Severity{"critical!", infoCircle, "blue"},
                    Severity{"crit", infoCircle, "blue"}));

TEST(AlertPresentation, HasTypeAndDescription) {
  const auto row = present(ThreatAlert{"malware", "high", {}, "found", {}, {}});
  EXPECT_EQ(row.alertType, QStringLiteral("malware"));
  EXPECT_TRUE(row.hasDescription);
  EXPECT_EQ(row.description, QStringLiteral("found"));
}

TEST(AlertPresentation, HasNoDescriptionWithoutOne) {
  EXPECT_FALSE(present(alertOf("high")).hasDescription);
}

TEST(AlertPresentation, TreatsAnEmptyDescriptionAsPresent) {
  const auto row = present(ThreatAlert{"malware", "high", {}, "", {}, {}});
  EXPECT_TRUE(row.hasDescription);
  EXPECT_TRUE(row.description.isEmpty());
}

TEST(AlertPresentation, ShowsNeitherTitleNorFileNorTime) {
  const auto row = present(ThreatAlert{"malware", "high", "title", "found", "/tmp/file", "today"});
  EXPECT_EQ(row.alertType, QStringLiteral("malware"));
  EXPECT_EQ(row.description, QStringLiteral("found"));
  EXPECT_EQ(row.accessibleName, QStringLiteral("high: malware, found"));
}

// Only the icon shows the severity, and a screen reader cannot read it.
TEST(AlertPresentation, HasTheSeverityInItsAccessibleName) {
  EXPECT_EQ(present(alertOf("HIGH")).accessibleName, QStringLiteral("HIGH: malware"));
  EXPECT_EQ(present(alertOf("")).accessibleName, QStringLiteral("malware"));
}

}  // namespace
}  // namespace quillmark
