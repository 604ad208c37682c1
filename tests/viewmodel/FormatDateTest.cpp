// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <map>
#include <ostream>

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

#include "viewmodel/PrintQString.h"

namespace quillmark::test {
namespace {

struct Place {
  const char* locale;
  const char* timeZone;
};

constexpr Place unitedStates{"en_US.UTF-8", "UTC"};

using Environment = std::map<QString, QString>;

/// The result of formatDate() in a process with these variables, and no others for the
/// locale.
QString formattedWith(const Environment& variables, const QString& text) {
  auto environment = QProcessEnvironment::systemEnvironment();
  for (const auto* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    environment.remove(QString::fromLatin1(variable));
  }
  for (const auto& [name, value] : variables) {
    environment.insert(name, value);
  }
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

QString formattedAt(const Place& place, const QString& text) {
  return formattedWith({{QStringLiteral("LC_ALL"), QString::fromLatin1(place.locale)},
                        {QStringLiteral("TZ"), QString::fromLatin1(place.timeZone)}},
                       text);
}

struct Instant {
  const char* name;
  Place place;
  const char* text;
  const char* shown;
};

void PrintTo(const Instant& instant, std::ostream* out) { *out << instant.name; }

class InstantTest : public testing::TestWithParam<Instant> {};

TEST_P(InstantTest, IsShownInTheShortStyleOfTheLocaleAndZone) {
  EXPECT_EQ(formattedAt(GetParam().place, QString::fromLatin1(GetParam().text)),
            QString::fromUtf8(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(
    Places, InstantTest,
    testing::Values(
        Instant{"UsUtc", unitedStates, "2026-11-15T18:40:00Z", "11/15/26, 6:40 PM"},
        Instant{"UsNewYork",
                {"en_US.UTF-8", "America/New_York"},
                "2024-01-15T10:30:00Z",
                "1/15/24, 5:30 AM"},
        Instant{"UsKolkata",
                {"en_US.UTF-8", "Asia/Kolkata"},
                "2024-01-15T10:30:00Z",
                "1/15/24, 4:00 PM"},
        Instant{"UsDayBefore",
                {"en_US.UTF-8", "Pacific/Honolulu"},
                "2024-01-01T05:00:00Z",
                "12/31/23, 7:00 PM"},
        Instant{"UsSummer",
                {"en_US.UTF-8", "America/New_York"},
                "2026-07-15T22:40:00Z",
                "7/15/26, 6:40 PM"},
        // Clocks show 1:30 twice that day.
        Instant{"UsHourAfterSummer",
                {"en_US.UTF-8", "America/New_York"},
                "2026-11-01T06:30:00Z",
                "11/1/26, 1:30 AM"},
        Instant{"UniversalTimeInSpring",
                {"en_US.UTF-8", "UTC"},
                "2026-03-08T02:30:00Z",
                "3/8/26, 2:30 AM"},
        Instant{
            "German", {"de_DE.UTF-8", "Europe/Berlin"}, "2024-01-15T10:30:00Z", "15.01.24, 11:30"},
        Instant{"GermanSummer",
                {"de_DE.UTF-8", "Europe/Berlin"},
                "2024-07-15T10:30:00Z",
                "15.07.24, 12:30"},
        Instant{
            "Japanese", {"ja_JP.UTF-8", "Asia/Tokyo"}, "2024-01-15T10:30:00Z", "2024/01/15 19:30"},
        Instant{"NoLocale", {"C", "UTC"}, "2024-01-15T10:30:00Z", "1/15/24, 10:30 AM"},
        Instant{"UnknownLocale", {"xx_XX", "UTC"}, "2024-01-15T10:30:00Z", "1/15/24, 10:30 AM"},
        Instant{"OffsetEast", unitedStates, "2024-01-15T10:30:00+01:00", "1/15/24, 9:30 AM"},
        Instant{"OffsetWest", unitedStates, "2024-01-15T22:30:00-05:00", "1/16/24, 3:30 AM"},
        Instant{"OffsetOfMinutes", unitedStates, "2024-01-15T10:30:00+05:45", "1/15/24, 4:45 AM"},
        Instant{"OffsetOfNothing", unitedStates, "2024-01-15T10:30:00-00:00", "1/15/24, 10:30 AM"},
        Instant{"LeapDay", unitedStates, "2024-02-29T00:00:00Z", "2/29/24, 12:00 AM"},
        Instant{"LastSecond", unitedStates, "2024-12-31T23:59:59Z", "12/31/24, 11:59 PM"}));

struct Variables {
  const char* name;
  Environment environment;
  const char* shown;
};

void PrintTo(const Variables& variables, std::ostream* out) { *out << variables.name; }

class VariablesTest : public testing::TestWithParam<Variables> {};

TEST_P(VariablesTest, ChooseTheLocaleOfDates) {
  EXPECT_EQ(formattedWith(GetParam().environment, QStringLiteral("2024-01-15T10:30:00Z")),
            QString::fromUtf8(GetParam().shown));
}

const auto all = QStringLiteral("LC_ALL");
const auto time = QStringLiteral("LC_TIME");
const auto lang = QStringLiteral("LANG");
const auto german = QStringLiteral("de_DE.UTF-8");
const auto british = QStringLiteral("en_GB.UTF-8");

INSTANTIATE_TEST_SUITE_P(
    Locales, VariablesTest,
    testing::Values(Variables{"None", {}, "1/15/24, 10:30 AM"},
                    Variables{"LangAlone", {{lang, german}}, "15.01.24, 10:30"},
                    Variables{"TimeOverLang", {{time, german}, {lang, british}}, "15.01.24, 10:30"},
                    Variables{"AllOverTime", {{all, british}, {time, german}}, "15/01/2024, 10:30"},
                    Variables{
                        "NothingInAll", {{all, QString()}, {time, german}}, "15.01.24, 10:30"}));

class OtherTextTest : public testing::TestWithParam<const char*> {};

TEST_P(OtherTextTest, IsNotChanged) {
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
