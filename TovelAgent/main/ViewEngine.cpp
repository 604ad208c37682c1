// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/ViewEngine.h"

#include <QQmlEngine>

#include "controls/IconProvider.h"
#include "controls/MaskedText.h"
#include "main/NetworkRefusal.h"

namespace quillmark {

void prepareForViews(QQmlEngine& engine) {
  hideMaskedText();
  static NetworkRefusal refusal;
  engine.setNetworkAccessManagerFactory(&refusal);
  engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
  engine.addImageProvider(QStringLiteral("icon"), new IconProvider);
}

}  // namespace quillmark
