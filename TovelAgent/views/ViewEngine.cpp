// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "views/ViewEngine.h"

#include <QQmlEngine>

#include "views/ControlsStyle.h"
#include "views/IconProvider.h"
#include "views/MaskedText.h"
#include "views/NetworkRefusal.h"

namespace quillmark {

void prepareForViews(QQmlEngine& engine) {
  fixControlsStyle();
  silenceMaskedText();
  static NetworkRefusal refusal;
  engine.setNetworkAccessManagerFactory(&refusal);
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
  engine.addImageProvider(QStringLiteral("icon"), new IconProvider);
}

}  // namespace quillmark
