// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QString>

#include "model/InstalledApp.h"

namespace quillmark {

/// What a row shows of one installed application.
struct AppPresentation {
  Q_GADGET
  QML_VALUE_TYPE(appPresentation)
  Q_PROPERTY(QString name MEMBER name CONSTANT)
  Q_PROPERTY(bool hasVersion MEMBER hasVersion CONSTANT)
  Q_PROPERTY(QString version MEMBER version CONSTANT)
  Q_PROPERTY(QString accessibleName MEMBER accessibleName CONSTANT)

 public:
  QString name;
  bool hasVersion = false;  ///< true also for an empty version
  QString version;          ///< with a leading "v"
  QString accessibleName;   ///< the row's text for screen readers
};

[[nodiscard]] AppPresentation present(const InstalledApp& app);

}  // namespace quillmark
