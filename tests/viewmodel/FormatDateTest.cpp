// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <ostream>
#include <string>

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include "viewmodel/PrintQString.h"

namespace quillmark::test {
namespace {

struct Place {
  const char* locale;
  const char* timeZone;
};

constexpr Place unitedStates{"en_US.UTF-8", "UTC"};

/// What formatDate() makes of `text` in a process at this place.
QString formattedAt(const Place& place, const QString& text) {
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(place.locale));
  environment.insert(QStringLiteral("TZ"), QString::fromLatin1(place.timeZone));
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(
      QCoreApplication::applicationDirPath() + QStringLiteral("/quillmark_format_date_program"),
      {text});
  EXPECT_TRUE(process.waitForFinished());
  EXPECT_EQ(process.exitCode(), 0);
  auto output = QString::fromUtf8(process.readAllStandardOutput());
  EXPECT_TRUE(output.endsWith(QLatin1Char('\n')));
  output.chop(1);
  return output;
}

struct Instant {
  const char* name;
  Place place;
  const char* text;
  // A pattern: with or without a comma after the date, whichever space before
  // AM and PM, differs between versions of the locale data.
  const char* shown;
};

void PrintTo(const Instant& instant, std::ostream* out) { *out << instant.name; }

class InstantTest : public testing::TestWithParam<Instant> {};

TEST_P(InstantTest, IsShownInTheShortFormatOfTheLocaleAndZone) {
  const auto shown = formattedAt(GetParam().place, QString::fromLatin1(GetParam().text));
  const QRegularExpression pattern(
      QRegularExpression::anchoredPattern(QString::fromLatin1(GetParam().shown)),
      QRegularExpression::UseUnicodePropertiesOption);
  EXPECT_TRUE(pattern.match(shown).hasMatch()) << qUtf8Printable(shown);
}

INSTANTIATE_TEST_SUITE_P(
    Places, InstantTest,
    testing::Values(
        Instant{"UsUtc", unitedStates, "2024-01-15T10:30:00Z", R"(1/15/24,?\s10:30\sAM)"},
        Instant{"UsNewYork",
                {"en_US.UTF-8", "America/New_York"},
                "2024-01-15T10:30:00Z",
                R"(1/15/24,?\s5:30\sAM)"},
        Instant{"UsKolkata",
                {"en_US.UTF-8", "Asia/Kolkata"},
                "2024-01-15T10:30:00Z",
                R"(1/15/24,?\s4:00\sPM)"},
        Instant{"UsDayBefore",
                {"en_US.UTF-8", "Pacific/Honolulu"},
                "2024-01-01T05:00:00Z",
                R"(12/31/23,?\s7:00\sPM)"},
        Instant{"UsSummer",
                {"en_US.UTF-8", "America/New_York"},
                "2026-07-15T22:40:00Z",
                R"(7/15/26,?\s6:40\sPM)"},
        Instant{"German",
                {"de_DE.UTF-8", "Europe/Berlin"},
                "2024-01-15T10:30:00Z",
                R"(15\.01\.24,?\s11:30)"},
        Instant{"GermanSummer",
                {"de_DE.UTF-8", "Europe/Berlin"},
                "2024-07-15T10:30:00Z",
                R"(15\.07\.24,?\s12:30)"},
        Instant{"NoLocale", {"C", "UTC"}, "2024-01-15T10:30:00Z", R"(15 Jan 2024 10:30:00)"},
        Instant{"OffsetEast", unitedStates, "2024-01-15T10:30:00+01:00", R"(1/15/24,?\s9:30\sAM)"},
        Instant{"OffsetWest", unitedStates, "2024-01-15T22:30:00-05:00", R"(1/16/24,?\s3:30\sAM)"},
        Instant{"OffsetOfMinutes", unitedStates, "2024-01-15T10:30:00+05:45",
                R"(1/15/24,?\s4:45\sAM)"},
        Instant{"OffsetOfNothing", unitedStates, "2024-01-15T10:30:00-00:00",
                R"(1/15/24,?\s10:30\sAM)"},
        Instant{"LeapDay", unitedStates, "2024-02-29T00:00:00Z", R"(2/29/24,?\s12:00\sAM)"},
        Instant{"LastSecond", unitedStates, "2024-12-31T23:59:59Z", R"(12/31/24,?\s11:59\sPM)"}));

class OtherTextTest : public testing::TestWithParam<const char*> {};

TEST_P(OtherTextTest, ComesBackUnchanged) {
  const auto text = QString::fromUtf8(GetParam());
  EXPECT_EQ(formattedAt(unitedStates, text), text);
  EXPECT_EQ(formattedAt({"de_DE.UTF-8", "Europe/Berlin"}, text), text);
}

INSTANTIATE_TEST_SUITE_P(
    OtherForms, OtherTextTest,
    testing::Values("", " ", "yesterday", "2024-01-15", "10:30:00Z", "2024-01-15T10:30:00",
                    "2024-01-15 10:30:00Z", "2024-01-15T10:30Z", "2024-01-15T10:30:00.5Z",
                    "2024-01-15T10:30:00.123Z", "2024-01-15T10:30:00,5Z",
                    "2024-01-15T10:30:00.123+01:00", " 2024-01-15T10:30:00Z",
                    "2024-01-15T10:30:00Z ", "2024-01-15T10:30:00Z\n2024-01-15T10:30:00Z",
                    "20240115T103000Z", "24-01-15T10:30:00Z", "2024-1-15T10:30:00Z",
                    "2024-W03-1T10:30:00Z", "2024-015T10:30:00Z", "2024-01-15T10:30:00+01",
                    "2024-01-15T10:30:00UTC", "2024-01-15T10:30:00ZZ", "1705314600",
                    "Mon, 15 Jan 2024 10:30:00 GMT", "<b>2024-01-15T10:30:00Z</b>",
                    "٢٠٢٤-٠١-١٥T١٠:٣٠:٠٠Z", "-2024-01-15T10:30:00Z", "12024-01-15T10:30:00Z"));

INSTANTIATE_TEST_SUITE_P(ImpossibleTimes, OtherTextTest,
                         testing::Values("2024-02-30T10:30:00Z", "2023-02-29T10:30:00Z",
                                         "2024-13-15T10:30:00Z", "2024-00-15T10:30:00Z",
                                         "2024-01-00T10:30:00Z", "2024-01-32T10:30:00Z",
                                         "2024-04-31T10:30:00Z", "0000-01-01T00:00:00Z",
                                         "2024-01-15T25:30:00Z", "2024-01-15T24:00:00Z",
                                         "2024-01-15T10:60:00Z", "2024-01-15T10:30:61Z",
                                         "2024-01-15T99:99:99Z", "2024-01-15T10:30:00+99:99",
                                         "2024-01-15T10:30:00-24:00", "2024-01-15T10:30:00+01:60"));

}  // namespace
}  // namespace quillmark::test
