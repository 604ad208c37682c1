// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/AppPresentation.h"

#include "viewmodel/DisplayText.h"

namespace quillmark {

AppPresentation present(const InstalledApp& app) {
  AppPresentation row;
  row.name = displayText(app.name);
  row.accessibleName = row.name;
  if (app.version) {
    row.hasVersion = true;
    row.version = QLatin1Char('v') + displayText(*app.version);
    row.accessibleName += QStringLiteral(", ") + row.version;
  }
  return row;
}

}  // namespace quillmark
