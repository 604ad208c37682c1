// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QString>

#include "model/InstalledApp.h"
#include "viewmodel/LongText.h"
#include "viewmodel/Snapshot.h"

namespace quillmark {

/// What a row shows of one installed application.
struct AppPresentation {
  Q_GADGET
  QML_VALUE_TYPE(appPresentation)
  Q_PROPERTY(quillmark::LongText name MEMBER name CONSTANT)
  Q_PROPERTY(bool hasVersion MEMBER hasVersion CONSTANT)
  Q_PROPERTY(quillmark::LongText version MEMBER version CONSTANT)
  Q_PROPERTY(QString accessibleName MEMBER accessibleName CONSTANT)

 public:
  LongText name;
  bool hasVersion = false;  ///< an empty version is one too
  LongText version;         ///< with a "v" in front
  QString accessibleName;   ///< the row read aloud
};

[[nodiscard]] AppPresentation present(const Snapshot<InstalledApp>& app);

}  // namespace quillmark
