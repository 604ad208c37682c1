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

/// The locale that the environment names for dates. Qt reads such names as they are
/// written there, and takes an unknown one, or none, for the C locale.
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

/// What clocks show there, as if they ran on universal time. The C library knows the
/// user's zone, and notices when the machine's zone changes; ICU would not.
UDate clockTime(const QDateTime& instant) {
  const auto local = instant.toLocalTime();
  return static_cast<UDate>(QDateTime(local.date(), local.time(), Qt::UTC).toMSecsSinceEpoch());
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
  format->format(clockTime(instant), text);
  // Versions of ICU differ in which blank they put before AM and PM.
  constexpr QChar narrowNoBreakSpace(0x202F);
  return QString::fromUtf16(text.getBuffer(), text.length())
      .replace(narrowNoBreakSpace, QLatin1Char(' '));
}

}  // namespace

QString formatDate(const QString& text) {
  // Qt's own parser takes more than that: fractions, bare dates, a local time, 24:00.
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
