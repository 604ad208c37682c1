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
  QString severityColor;  ///< the theme's name of the icon's colour
  QString alertType;
  bool hasDescription = false;  ///< an empty description is one too
  QString description;
  QString accessibleName;  ///< the row read aloud, the severity first: the icon is its only sign
};

/// The severity is compared without regard to case, and not trimmed; whatever
/// is not "critical", "high" or "medium" counts as information.
[[nodiscard]] AlertPresentation present(const ThreatAlert& alert);

}  // namespace quillmark
