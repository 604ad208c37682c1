// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/AlertPresentation.h"

#include <algorithm>
#include <array>

#include "viewmodel/DisplayText.h"

namespace quillmark {
namespace {

struct SeverityLook {
  QLatin1String severity;
  QLatin1String icon;
  QLatin1String color;
};

constexpr std::array severityLooks{
    SeverityLook{QLatin1String("critical"), QLatin1String("exclamationmark.triangle.fill"),
                 QLatin1String("red")},
    SeverityLook{QLatin1String("high"), QLatin1String("exclamationmark.circle.fill"),
                 QLatin1String("orange")},
    SeverityLook{QLatin1String("medium"), QLatin1String("exclamationmark.circle"),
                 QLatin1String("yellow")},
};

constexpr SeverityLook informationLook{{}, QLatin1String("info.circle"), QLatin1String("blue")};

const SeverityLook& lookOf(const QString& severity) {
  const QString lowered = severity.toLower();
  const auto* const found =
      std::find_if(severityLooks.begin(), severityLooks.end(),
                   [&](const SeverityLook& look) { return look.severity == lowered; });
  return found == severityLooks.end() ? informationLook : *found;
}

}  // namespace

AlertPresentation present(const ThreatAlert& alert) {
  const auto severity = displayText(alert.severity);
  const auto& look = lookOf(severity);

  AlertPresentation row;
  row.severityIcon = look.icon;
  row.severityColor = look.color;
  row.alertType = displayText(alert.alert_type);
  row.accessibleName = row.alertType;
  if (!severity.isEmpty()) {
    row.accessibleName.prepend(severity + QStringLiteral(": "));
  }
  if (alert.description) {
    row.hasDescription = true;
    row.description = displayText(*alert.description);
    row.accessibleName += QStringLiteral(", ") + row.description;
  }
  return row;
}

}  // namespace quillmark
