// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/FormatDate.h"

#include <memory>

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace quillmark {
namespace {

/// The locale that the environment sets for dates. Qt can parse the format of these
/// variables, and uses the C locale for an unknown or empty name.
icu::Locale userLocale() {
  QByteArray name;
  for (const auto* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    if (name.isEmpty()) {
      name = qgetenv(variable);
    }
  }
  const auto tag = QLocale(QString::fromLatin1(name)).bcp47Name().toStdString();
  auto status = U_ZERO_ERROR;
  return icu::Locale::forLanguageTag(tag, status);
}

/// The user's local time, encoded as if it were UTC. The C library knows the user's
/// time zone and notices when the machine's zone changes; ICU does not.
UDate localTimeAsUtc(const QDateTime& instant) {
  const auto local = instant.toLocalTime();
  return static_cast<UDate>(local.toMSecsSinceEpoch() + 1000LL * local.offsetFromUtc());
}

QString inShortStyle(const QDateTime& instant) {
  using icu::DateFormat;
  const std::unique_ptr<DateFormat> format(
      DateFormat::createDateTimeInstance(DateFormat::kShort, DateFormat::kShort, userLocale()));
  if (!format) {
    return {};
  }
  format->setTimeZone(*icu::TimeZone::getGMT());
  icu::UnicodeString text;
  format->format(localTimeAsUtc(instant), text);
  // ICU versions differ in which space they put before AM and PM.
  constexpr QChar narrowNoBreakSpace(0x202F);
  return QString::fromUtf16(text.getBuffer(), text.length())
      .replace(narrowNoBreakSpace, QLatin1Char(' '));
}

}  // namespace

QString formatDate(const QString& text) {
  // Qt's own parser accepts more: fractions, dates without a time, local times, 24:00.
  const QRegularExpression internetDateTime(QRegularExpression::anchoredPattern(
      QStringLiteral(R"([0-9]{4}-[0-9]{2}-[0-9]{2}T([01][0-9]|2[0-3]):[0-9]{2}:[0-9]{2})"
                     R"((Z|[+-][0-9]{2}:[0-9]{2}))")));
  const auto instant = internetDateTime.match(text).hasMatch()
                           ? QDateTime::fromString(text, Qt::ISODate)
                           : QDateTime();
  const auto shown = instant.isValid() ? inShortStyle(instant) : QString();
  return shown.isEmpty() ? text : shown;
}

}  // namespace quillmark
