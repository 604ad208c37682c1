// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/FormatDate.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

namespace quillmark {

QString formatDate(const QString& text) {
  // Qt's own parser takes more than that: fractions, bare dates, a local time, 24:00.
  const QRegularExpression internetDateTime(QRegularExpression::anchoredPattern(
      QStringLiteral(R"([0-9]{4}-[0-9]{2}-[0-9]{2}T([01][0-9]|2[0-3]):[0-9]{2}:[0-9]{2})"
                     R"((Z|[+-][0-9]{2}:[0-9]{2}))")));
  const auto instant = internetDateTime.match(text).hasMatch()
                           ? QDateTime::fromString(text, Qt::ISODate)
                           : QDateTime();
  if (!instant.isValid()) {
    return text;
  }
  return QLocale::system().toString(instant.toLocalTime(), QLocale::ShortFormat);
}

}  // namespace quillmark
