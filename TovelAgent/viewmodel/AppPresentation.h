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
  bool hasVersion = false;  ///< an empty version is one too
  QString version;          ///< with a "v" in front
  QString accessibleName;   ///< the row read aloud
};

[[nodiscard]] AppPresentation present(const InstalledApp& app);

}  // namespace quillmark
