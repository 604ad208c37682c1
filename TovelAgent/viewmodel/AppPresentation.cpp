// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/AppPresentation.h"

namespace quillmark {

AppPresentation present(const Snapshot<InstalledApp>& app) {
  AppPresentation row;
  row.name = LongText({app, &app->name});
  row.accessibleName = row.name.shortened();
  if (app->version) {
    row.hasVersion = true;
    row.version = LongText({app, &*app->version}, QStringLiteral("v"));
    row.accessibleName += QStringLiteral(", ") + row.version.shortened();
  }
  return row;
}

}  // namespace quillmark
