// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QString>

#include "model/ThreatAlert.h"

namespace quillmark {

/// What a row shows of one alert.
struct AlertPresentation {
  Q_GADGET
  QML_VALUE_TYPE(alertPresentation)
  Q_PROPERTY(QString severityIcon MEMBER severityIcon CONSTANT)
  Q_PROPERTY(QString severityColor MEMBER severityColor CONSTANT)
  Q_PROPERTY(QString alertType MEMBER alertType CONSTANT)
  Q_PROPERTY(bool hasDescription MEMBER hasDescription CONSTANT)
  Q_PROPERTY(QString description MEMBER description CONSTANT)
  Q_PROPERTY(QString accessibleName MEMBER accessibleName CONSTANT)

 public:
  QString severityIcon;   ///< symbolic icon name
  QString severityColor;  ///< the icon's colour, by its name in the theme
  QString alertType;
  bool hasDescription = false;  ///< true also for an empty description
  QString description;
  /// The row's text for screen readers. Begins with the severity, which the row shows
  /// only as an icon.
  QString accessibleName;
};

/// The severity is compared case-insensitively and is not trimmed; every value
/// except "critical", "high" and "medium" is treated as information.
[[nodiscard]] AlertPresentation present(const ThreatAlert& alert);

}  // namespace quillmark
