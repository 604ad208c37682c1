// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/AppPresentation.h"

namespace quillmark {

AppPresentation present(const InstalledApp& app) {
  AppPresentation row;
  row.name = QString::fromStdString(app.name);
  row.accessibleName = row.name;
  if (app.version) {
    row.hasVersion = true;
    row.version = QString::fromStdString("v" + *app.version);
    row.accessibleName += QStringLiteral(", ") + row.version;
  }
  return row;
}

}  // namespace quillmark
